#pragma once
#include <QLineEdit>
#include <QWidget>

// An edit holding a folder path with a browse button beside it.
class FolderBrowseEdit : public QWidget {
 public:
  explicit FolderBrowseEdit(QWidget* parent = nullptr);
  QString text() const { return edit_->text(); }
  void setText(const QString& text) { edit_->setText(text); }
  QLineEdit* lineEdit() const { return edit_; }
  void Browse();

 private:
  QLineEdit* edit_;
};

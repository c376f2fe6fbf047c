#include "dialogs/frame/FolderBrowseEdit.h"

#include <QHBoxLayout>
#include <QToolButton>

#include "dialogs/frame/Prompter.h"

FolderBrowseEdit::FolderBrowseEdit(QWidget* parent) : QWidget(parent), edit_(new QLineEdit(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  auto* button = new QToolButton(this);
  button->setText("...");
  button->setObjectName("browse");
  layout->addWidget(edit_, 1);
  layout->addWidget(button);
  setFocusProxy(edit_);
  connect(button, &QToolButton::clicked, this, [this] { Browse(); });
}

void FolderBrowseEdit::Browse() {
  const std::string folder = GetPrompter().FolderName(this, "Select Folder", edit_->text().toStdString());
  if (!folder.empty()) edit_->setText(QString::fromStdString(folder));
}

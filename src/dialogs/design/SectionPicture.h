#pragma once
#include <QWidget>

#include "dialogs/design/shape_outline.h"

class CDialog;

// Draws a cross-section to scale with its dimension lines, where engineers would rather
// look than read.
class SectionPicture : public QWidget {
 public:
  explicit SectionPicture(QWidget* parent = nullptr);

  // Takes the place of a placeholder control of the dialog, keeping its id.
  bool CreateInPlace(CDialog* parent, int placeholderId);
  void SetOutline(design::Outline outline);
  const design::Outline& outline() const { return outline_; }
  // What the empty picture says.
  void SetPlaceholderText(const QString& text) {
    placeholderText_ = text;
    update();
  }
  QSize sizeHint() const override { return {260, 260}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  design::Outline outline_;
  QString placeholderText_ = "No shape selected";
};

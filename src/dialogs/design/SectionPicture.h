#pragma once
#include <QLineF>
#include <QRectF>
#include <QWidget>
#include <vector>

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

  // Where the picture at its current size draws each dimension line and its text (the
  // bounding box of the text, upright or turned), in the order of the outline's marks.
  struct PlacedMark {
    QLineF line;                  // the dimension line; null when the mark has no length here
    QLineF extensionA, extensionB;  // from the shape to the line; null for a mark on the shape
    QRectF text;
    bool upright = true;  // false: the text reads upwards along a vertical line
  };
  std::vector<PlacedMark> PlaceMarks() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // The scale and the model origin in widget coordinates.
  double Scale() const;
  QPointF Origin(double scale) const;
  QFont MarkFont() const;

  design::Outline outline_;
  QString placeholderText_ = "No shape selected";
};

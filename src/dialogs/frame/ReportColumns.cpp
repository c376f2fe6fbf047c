#include "dialogs/frame/ReportColumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeWidget>

namespace frame {
namespace {

// Lives as long as the list: refits the columns on every resize of its viewport.
class ColumnShares : public QObject {
 public:
  ColumnShares(QTreeWidget* list, std::vector<double> shares) : QObject(list), list_(list), shares_(std::move(shares)) {
    list->header()->setStretchLastSection(false);
    list->viewport()->installEventFilter(this);
    Fit();
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fit();
    return false;
  }

 private:
  void Fit() {
    const int width = list_->viewport()->width();
    for (size_t col = 0; col < shares_.size(); ++col)
      list_->setColumnWidth(static_cast<int>(col), static_cast<int>(width * shares_[col]));
  }

  QTreeWidget* list_;
  std::vector<double> shares_;
};

}  // namespace

void KeepColumnShares(QWidget* reportList, std::vector<double> shares) {
  if (auto* list = qobject_cast<QTreeWidget*>(reportList)) new ColumnShares(list, std::move(shares));
}

}  // namespace frame

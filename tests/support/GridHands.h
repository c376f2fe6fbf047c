#pragma once
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <string>
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "dialogs/grid/TSpread.h"
#include "support/DialogTest.h"

// A user's hands on a grid: clicks on cells, keys to the widget that has the focus, paste
// through the clipboard. Set `spread` before use.
class GridHands {
 public:
  TSpread* spread = nullptr;

  QTableView* view() const { return spread->view(); }
  grid::Sheet& sheet() const { return spread->sheet(); }
  QPoint CellCenter(int col, int row) const {
    const QModelIndex index = view()->model()->index(row - 1, col - 1);
    view()->scrollTo(index);
    return view()->visualRect(index).center();
  }
  void Click(int col, int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, CellCenter(col, row));
  }
  static void Type(const QString& text) {
    for (QChar c : text) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
  }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QApplication::processEvents();  // the delegate commits on the next turn of the event loop
  }
  static void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    Press(Qt::Key_V, Qt::ControlModifier);
  }
  // Types a text into a cell and leaves it with Enter.
  void TypeInto(int col, int row, const QString& text) const {
    Click(col, row);
    Type(text);
    Press(Qt::Key_Return);
  }
  std::vector<std::string> Row(int row) const {
    std::vector<std::string> texts;
    for (int col = 1; col <= sheet().MaxCols(); ++col) texts.push_back(sheet().GetData(col, row));
    return texts;
  }
};

// A table dialog in front of the user, its grid in the user's hands.
class GridDialogTest : public DialogTest, public GridHands {
 protected:
  void Show(CDataGridDlg& dlg) {
    spread = &dlg.Spread();
    dlg.show();
    QApplication::setActiveWindow(&dlg);
    view()->setFocus();
  }
  // A table opens with its caption, the title of its printout and "Delete Rows" and holds
  // `rows` rows (-1: any); OK without an edit closes it.
  static void ExpectOpensAndCloses(CDataGridDlg& dlg, const char* caption, const char* title, int rows = -1) {
    SCOPED_TRACE(caption);
    EXPECT_EQ(dlg.windowTitle().toStdString(), caption);
    EXPECT_EQ(dlg.PrintTitle(), title);
    EXPECT_EQ(dlg.GetDlgItemText(res::kCtlGridEditAction), "Delete Rows");
    if (rows >= 0) {
      EXPECT_EQ(dlg.Spread().sheet().MaxRows(), rows);
    }
    ASSERT_TRUE(dlg.PressButton(IDOK));
    EXPECT_EQ(dlg.ModalResult(), IDOK);
  }
  // A locked model: its message, the grid locked, OK and the editing buttons disabled, and
  // the grid's own action (on the active row) changing nothing.
  void ExpectLocked(CDataGridDlg& dlg) {
    ASSERT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Messages()[0].rfind("The Model is locked.\nYou can not modify data in the spreadsheet.", 0), 0u);
    EXPECT_TRUE(dlg.Spread().sheet().IsLockedAll());
    for (int id : {IDOK, res::kCtlNewRows, res::kCtlGridEditAction}) EXPECT_FALSE(dlg.GetDlgItem(id)->isEnabled()) << id;
    const int rows = dlg.Spread().sheet().MaxRows();
    dlg.PressButton(res::kCtlGridEditAction);
    EXPECT_EQ(dlg.Spread().sheet().MaxRows(), rows);
  }
  // "New Rows" with the count typed into its field.
  static void AddNewRows(CDataGridDlg& dlg, const char* count) {
    dlg.Item<QLineEdit>(res::kCtlNewRowCount)->setText(count);
    ASSERT_TRUE(dlg.PressButton(res::kCtlNewRows));
  }
};

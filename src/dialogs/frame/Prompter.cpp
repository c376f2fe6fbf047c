#include "dialogs/frame/Prompter.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QCursor>
#include <QMenu>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>

#include <cstdlib>

#include "tools/release.h"

namespace {

WidgetPrompter& DefaultPrompter() {
  static WidgetPrompter prompter;
  return prompter;
}

Prompter* g_prompter = nullptr;

QString Filters(const FileDialogRequest& r) {
  QStringList list;
  for (const auto& f : r.filters) list << QString::fromStdString(f);
  return list.join(";;");
}

void Configure(QFileDialog& dialog, const FileDialogRequest& r) {
  dialog.setOption(QFileDialog::DontUseNativeDialog, true);
  dialog.setWindowTitle(QString::fromStdString(r.title));
  dialog.setNameFilter(Filters(r));
  if (!r.directory.empty()) dialog.setDirectory(QString::fromStdString(r.directory));
  if (!r.defaultExtension.empty()) dialog.setDefaultSuffix(QString::fromStdString(r.defaultExtension));
  if (!r.defaultName.empty() && r.defaultName.find('*') == std::string::npos)
    dialog.selectFile(QString::fromStdString(r.defaultName));
}

}  // namespace

Prompter& GetPrompter() { return g_prompter ? *g_prompter : DefaultPrompter(); }

Prompter* SetPrompter(Prompter* prompter) {
  Prompter* previous = g_prompter;
  g_prompter = prompter;
  return previous;
}

void PlaceOver(QWidget& box, QWidget* parent) {
  // A dialog's set-up may speak before the dialog is shown: then its parent window, or the
  // screen, is what the box is centred on.
  QWidget* anchor = parent ? parent->window() : nullptr;
  while (anchor && !anchor->isVisible()) anchor = anchor->parentWidget() ? anchor->parentWidget()->window() : nullptr;
  QRect area;
  if (anchor) {
    area = anchor->frameGeometry();
  } else if (QScreen* screen = parent && parent->screen() ? parent->screen() : QGuiApplication::primaryScreen()) {
    area = screen->availableGeometry();
  }
  if (area.isEmpty()) return;
  box.adjustSize();
  box.move(area.center() - QPoint(box.width() / 2, box.height() / 2));
}

namespace {

QMessageBox::StandardButton AskBox(QWidget* parent, QMessageBox::Icon icon, const std::string& text,
                                   QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preferred) {
  QMessageBox box(icon, QString::fromUtf8(tools::kProductName), QString::fromStdString(text), buttons, parent);
  box.setDefaultButton(preferred);
  PlaceOver(box, parent);
  const int answer = box.exec();
  return static_cast<QMessageBox::StandardButton>(answer);
}

}  // namespace

void WidgetPrompter::Message(QWidget* parent, const std::string& text, MessageIcon icon) {
  const QMessageBox::Icon shown = icon == MessageIcon::Information ? QMessageBox::Information
                                  : icon == MessageIcon::Warning   ? QMessageBox::Warning
                                                                   : QMessageBox::Critical;
  AskBox(parent, shown, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool WidgetPrompter::Question(QWidget* parent, const std::string& text) {
  return AskBox(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

Answer WidgetPrompter::QuestionWithCancel(QWidget* parent, const std::string& text) {
  const auto b = AskBox(parent, QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                        QMessageBox::Cancel);
  return b == QMessageBox::Yes ? Answer::Yes : b == QMessageBox::No ? Answer::No : Answer::Cancel;
}

std::string WidgetPrompter::SaveFileName(QWidget* parent, const FileDialogRequest& request) {
  QFileDialog dialog(parent);
  Configure(dialog, request);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.confirmReplace);
  // A name typed without an extension takes the chosen filter's, so "Tab Delimited Text
  // File (*.txt)" saves "nodes" as "nodes.txt" rather than with the default extension.
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
    const qsizetype star = filter.indexOf("*.");
    if (star < 0) return;
    const qsizetype end = filter.indexOf(QRegularExpression("[ ;)]"), star);
    const QString suffix = filter.mid(star + 2, end < 0 ? -1 : end - star - 2);
    if (!suffix.isEmpty() && !suffix.contains('*')) dialog.setDefaultSuffix(suffix);
  });
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

std::string WidgetPrompter::OpenFileName(QWidget* parent, const FileDialogRequest& request) {
  QFileDialog dialog(parent);
  Configure(dialog, request);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front().toStdString();
}

std::string WidgetPrompter::FolderName(QWidget* parent, const std::string& title, const std::string& start) {
  return QFileDialog::getExistingDirectory(parent, QString::fromStdString(title), QString::fromStdString(start),
                                           QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog)
      .toStdString();
}

int WidgetPrompter::ChooseFromMenu(QWidget* parent, const std::vector<std::string>& entries) {
  QMenu menu(parent);
  for (const auto& e : entries) menu.addAction(QString::fromStdString(e));
  QAction* chosen = menu.exec(QCursor::pos());
  return chosen ? static_cast<int>(menu.actions().indexOf(chosen)) : -1;
}

std::optional<uint32_t> WidgetPrompter::ChooseColor(QWidget* parent, const std::string& title, uint32_t initial) {
  const QColor chosen = QColorDialog::getColor(QColor::fromRgb(initial), parent, QString::fromStdString(title),
                                               QColorDialog::DontUseNativeDialog);
  if (!chosen.isValid()) return std::nullopt;
  return chosen.rgb() & 0xFFFFFFu;
}

bool WidgetPrompter::PrintSetup(QWidget* parent, QPrinter& printer) {
  QPrintDialog dialog(&printer, parent);
  return dialog.exec() == QDialog::Accepted;
}

namespace {
// QueueCancel answers a file dialog as its Cancel button does: with no path.
std::string PathAnswer(std::string answer) { return answer == "cancel" ? std::string() : answer; }
}  // namespace

std::string ScriptedPrompter::NextAnswer(const std::string& what) {
  if (answers_.empty()) {
    if (onUnexpected) onUnexpected(what);
    return {};
  }
  std::string a = answers_.front();
  answers_.pop_front();
  return a;
}

void ScriptedPrompter::Message(QWidget*, const std::string& text, MessageIcon icon) {
  prompts_.push_back({PromptKind::Message, text, icon, {}});
  if (onPrompt) onPrompt(prompts_.back());
}

bool ScriptedPrompter::Question(QWidget*, const std::string& text) {
  prompts_.push_back({PromptKind::Question, text, MessageIcon::Warning, {}});
  if (onPrompt) onPrompt(prompts_.back());
  return NextAnswer("question: " + text) == "yes";
}

Answer ScriptedPrompter::QuestionWithCancel(QWidget*, const std::string& text) {
  prompts_.push_back({PromptKind::Question, text, MessageIcon::Warning, {}});
  if (onPrompt) onPrompt(prompts_.back());
  const std::string a = NextAnswer("question: " + text);
  return a == "yes" ? Answer::Yes : a == "no" ? Answer::No : Answer::Cancel;
}

std::string ScriptedPrompter::SaveFileName(QWidget*, const FileDialogRequest& request) {
  prompts_.push_back({PromptKind::SaveFile, request.title, MessageIcon::Warning, request});
  if (onPrompt) onPrompt(prompts_.back());
  return PathAnswer(NextAnswer("save file: " + request.title));
}

std::string ScriptedPrompter::OpenFileName(QWidget*, const FileDialogRequest& request) {
  prompts_.push_back({PromptKind::OpenFile, request.title, MessageIcon::Warning, request});
  if (onPrompt) onPrompt(prompts_.back());
  return PathAnswer(NextAnswer("open file: " + request.title));
}

std::string ScriptedPrompter::FolderName(QWidget*, const std::string& title, const std::string&) {
  prompts_.push_back({PromptKind::Folder, title, MessageIcon::Warning, {}});
  if (onPrompt) onPrompt(prompts_.back());
  return PathAnswer(NextAnswer("folder: " + title));
}

int ScriptedPrompter::ChooseFromMenu(QWidget*, const std::vector<std::string>& entries) {
  std::string text;
  for (const auto& e : entries) text += (text.empty() ? "" : "\n") + e;
  prompts_.push_back({PromptKind::Menu, text, MessageIcon::Information, {}});
  if (onPrompt) onPrompt(prompts_.back());
  const std::string a = NextAnswer("menu: " + text);
  return a.empty() ? -1 : std::atoi(a.c_str());
}

void ScriptedPrompter::QueueColor(uint32_t rgb) {
  answers_.push_back(QColor::fromRgb(rgb & 0xFFFFFFu).name().toStdString());
}

std::optional<uint32_t> ScriptedPrompter::ChooseColor(QWidget*, const std::string& title, uint32_t) {
  prompts_.push_back({PromptKind::Color, title, MessageIcon::Information, {}});
  if (onPrompt) onPrompt(prompts_.back());
  const QColor chosen(QString::fromStdString(NextAnswer("color: " + title)));
  if (!chosen.isValid()) return std::nullopt;
  return chosen.rgb() & 0xFFFFFFu;
}

bool ScriptedPrompter::PrintSetup(QWidget*, QPrinter& printer) {
  const std::string job = printer.docName().toStdString();
  prompts_.push_back({PromptKind::Print, job, MessageIcon::Information, {}});
  if (onPrompt) onPrompt(prompts_.back());
  const std::string path = NextAnswer("print: " + job);
  if (path.empty() || path == "cancel") return false;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(path));
  return true;
}

std::vector<std::string> ScriptedPrompter::Texts() const {
  std::vector<std::string> texts;
  for (const auto& p : prompts_)
    if (p.kind == PromptKind::Message || p.kind == PromptKind::Question) texts.push_back(p.text);
  return texts;
}

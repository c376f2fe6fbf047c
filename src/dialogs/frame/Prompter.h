#pragma once
#include <deque>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QPrinter;
class QWidget;

// Every message box, question and file dialog of the library goes through the current
// prompter, so tests script the answers and read the texts, and a host may restyle them.
enum class MessageIcon { Information, Warning, Error };
enum class Answer { Yes, No, Cancel };

struct FileDialogRequest {
  std::string title;
  std::string directory;
  std::string defaultName;       // e.g. "*.htm"
  std::string defaultExtension;  // added when the user types none, e.g. "htm"
  std::vector<std::string> filters;  // e.g. "HTML File (*.htm)"
  bool confirmReplace = true;        // ask before an existing file is chosen to be replaced
};

class Prompter {
 public:
  virtual ~Prompter() = default;
  virtual void Message(QWidget* parent, const std::string& text, MessageIcon icon) = 0;
  // Yes/No question; true for Yes. With cancel: Yes, No or Cancel.
  virtual bool Question(QWidget* parent, const std::string& text) = 0;
  virtual Answer QuestionWithCancel(QWidget* parent, const std::string& text) = 0;
  // Chosen path, or empty when cancelled. The second argument receives the chosen filter.
  virtual std::string SaveFileName(QWidget* parent, const FileDialogRequest& request) = 0;
  virtual std::string OpenFileName(QWidget* parent, const FileDialogRequest& request) = 0;
  virtual std::string FolderName(QWidget* parent, const std::string& title, const std::string& start) = 0;
  // A context menu at the mouse; the chosen entry's position, or -1 when dismissed.
  virtual int ChooseFromMenu(QWidget* parent, const std::vector<std::string>& entries) = 0;
  // A colour (0xRRGGBB) chosen starting from initial; nothing when cancelled.
  virtual std::optional<uint32_t> ChooseColor(QWidget* parent, const std::string& title, uint32_t initial) = 0;
  // Lets the user pick the printer (or a PDF file) for a print job; false when cancelled.
  virtual bool PrintSetup(QWidget* parent, QPrinter& printer) = 0;
};

// Message boxes and Qt's own (non-native) file dialogs.
class WidgetPrompter : public Prompter {
 public:
  void Message(QWidget* parent, const std::string& text, MessageIcon icon) override;
  bool Question(QWidget* parent, const std::string& text) override;
  Answer QuestionWithCancel(QWidget* parent, const std::string& text) override;
  std::string SaveFileName(QWidget* parent, const FileDialogRequest& request) override;
  std::string OpenFileName(QWidget* parent, const FileDialogRequest& request) override;
  std::string FolderName(QWidget* parent, const std::string& title, const std::string& start) override;
  int ChooseFromMenu(QWidget* parent, const std::vector<std::string>& entries) override;
  std::optional<uint32_t> ChooseColor(QWidget* parent, const std::string& title, uint32_t initial) override;
  bool PrintSetup(QWidget* parent, QPrinter& printer) override;
};

// Records every prompt and answers from a queue. With no queued answer a question is
// answered No and a file dialog cancelled, and the unexpected-prompt callback (if set)
// is told, so a test fails on a prompt it did not script.
class ScriptedPrompter : public Prompter {
 public:
  enum class PromptKind { Message, Question, SaveFile, OpenFile, Folder, Menu, Color, Print };
  struct Prompt {
    PromptKind kind;
    std::string text;  // message or question text, or the file dialog's title
    MessageIcon icon = MessageIcon::Warning;
    FileDialogRequest request;
  };

  void QueueAnswer(bool yes) { answers_.push_back(yes ? "yes" : "no"); }
  void QueueCancel() { answers_.push_back("cancel"); }
  void QueueMenuChoice(int index) { answers_.push_back(std::to_string(index)); }
  void QueuePath(const std::string& path) { answers_.push_back(path); }
  void QueueColor(uint32_t rgb);

  void Message(QWidget* parent, const std::string& text, MessageIcon icon) override;
  bool Question(QWidget* parent, const std::string& text) override;
  Answer QuestionWithCancel(QWidget* parent, const std::string& text) override;
  std::string SaveFileName(QWidget* parent, const FileDialogRequest& request) override;
  std::string OpenFileName(QWidget* parent, const FileDialogRequest& request) override;
  std::string FolderName(QWidget* parent, const std::string& title, const std::string& start) override;
  // The prompt's text lists the entries, one a line.
  int ChooseFromMenu(QWidget* parent, const std::vector<std::string>& entries) override;
  // Answered by QueueColor; a cancel or nothing queued keeps the old colour.
  std::optional<uint32_t> ChooseColor(QWidget* parent, const std::string& title, uint32_t initial) override;
  // Answered by QueuePath: the job is written as a PDF file there; a cancel cancels it.
  bool PrintSetup(QWidget* parent, QPrinter& printer) override;

  const std::vector<Prompt>& prompts() const { return prompts_; }
  // The texts of all messages and questions, in order.
  std::vector<std::string> Texts() const;
  void Clear() { prompts_.clear(); }
  size_t PendingAnswers() const { return answers_.size(); }

  std::function<void(const std::string&)> onUnexpected;  // called when no answer is queued
  std::function<void(const Prompt&)> onPrompt;           // called for every prompt

 private:
  std::string NextAnswer(const std::string& what);
  std::vector<Prompt> prompts_;
  std::deque<std::string> answers_;
};

// Centres a message box or question on the window of the widget that raised it (on the
// first shown window above it, or the screen, while that one is not shown yet).
void PlaceOver(QWidget& box, QWidget* parent);

Prompter& GetPrompter();
// Installs a prompter (not owned) and returns the previous one; nullptr restores the default.
Prompter* SetPrompter(Prompter* prompter);

// Installs a prompter for the lifetime of the object.
class ScopedPrompter {
 public:
  explicit ScopedPrompter(Prompter& p) : previous_(SetPrompter(&p)) {}
  ~ScopedPrompter() { SetPrompter(previous_); }
  ScopedPrompter(const ScopedPrompter&) = delete;
  ScopedPrompter& operator=(const ScopedPrompter&) = delete;

 private:
  Prompter* previous_;
};

#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Dialog templates and the string table, looked up through a chain: tables a host links
// come first, then the library's, so a host can override any text or template.
namespace res {

struct StringEntry {
  int id;
  const char* text;
};

enum class Kind : uint8_t {
  Static,       // label
  Edit,         // single-line edit
  Button,       // push button
  Check,        // check box
  Radio,        // radio button; a run of radios is one group, started by kGroupStart
  DropList,     // drop-down list (combo without typing)
  List,         // list box
  ReportList,   // multi-column list; column headings are the text, separated by '\t'
  CheckList,    // list of check boxes
  Group,        // group box; controls naming it as their group are laid out inside
  Placeholder,  // where a grid or picture is created in place
  Progress,     // progress bar
  FontCombo,    // font chooser
  FolderEdit,   // edit with a folder-browse button
};

enum Flags : uint32_t {
  kDisabled = 1u << 0,
  kHidden = 1u << 1,
  kReadOnly = 1u << 2,
  kMultiline = 1u << 3,
  kGroupStart = 1u << 4,  // first radio of a group
  kDefault = 1u << 5,     // default push button
  kAlignRight = 1u << 6,
  kStretchRow = 1u << 7,  // the control's row takes spare height
  kStretchCol = 1u << 8,  // the control's column takes spare width
  kNarrow = 1u << 9,      // a short number edit: about ten digits wide, kept at the left of its cell
};

// One control: id, kind, string id (0: none) with the template's own text, its cell in
// the dialog's grid (or in its group's grid) and its flags.
struct Control {
  int id;
  Kind kind;
  int stringId;
  const char* text;
  int row;
  int col;
  int rowSpan = 1;
  int colSpan = 1;
  int group = 0;  // id of the enclosing group box, 0 for the dialog body
  uint32_t flags = 0;
};

struct DialogTemplate {
  int id;
  int captionStringId;
  const char* caption;
  std::vector<Control> controls;
  int minWidth = 0;   // pixels; 0 lets the layout decide
  int minHeight = 0;

  const Control* FindControl(int controlId) const;
};

struct ResourceTable {
  const char* name;
  std::span<const StringEntry> strings;
  std::span<const DialogTemplate* const> templates;
};

// Links a table into the chain: host tables in front of the library's.
void LinkResourceTable(const ResourceTable& table, bool hostTable);
void UnlinkResourceTable(const ResourceTable& table);

std::optional<std::string> LoadString(int stringId);
// The string's text, or the fallback when the chain has none.
std::string LoadStringOr(int stringId, std::string_view fallback);
const DialogTemplate* FindTemplate(int templateId);

// The library's own tables, one per dialog family, and last the generated one.
std::span<const ResourceTable* const> LibraryResourceTables();

// The table of templates and strings made from the dialogs' form descriptions when they are
// first used (at the latest when the library registers its classes). A template replaces
// one of its id; a string already there with the same text is kept once, and one with
// another text is recorded as a conflict (a fault the resource tests look for).
const ResourceTable& GeneratedResources();
void AddGeneratedTemplate(std::unique_ptr<const DialogTemplate> tmpl);
void AddGeneratedString(int id, std::string text);
std::span<const std::string> GeneratedStringConflicts();

}  // namespace res

#pragma once

// The texts the load case and combination dialogs show; the engines return them.
namespace loads {

inline constexpr const char* kFmtBadCaseLabel = "Load case label can only %s";
inline constexpr const char* kFmtBadCombLabel = "Load combination label can only %s";
inline constexpr const char* kFmtDuplicateLabel = "Duplicate label [%s] can not be used.";
inline constexpr const char* kMsgFirstCaseNotDeleted = "You may not delete the first load case";
inline constexpr const char* kMsgCombLabelUsed = "Load combination label already used.";
inline constexpr const char* kMsgSustainedNegative = "Sustained load factor must not be less than 0.0";
inline constexpr const char* kMsgFirstCombNotDeleted = "The first load combination may not be deleted.";
inline constexpr const char* kMsgSustainedReminder =
    "You should create a unit load combination that contains only sustained (usually 1.0 x DEAD) loads.\n"
    "This load combination is needed to calculate Beta-d in the design for concrete columns.";
inline constexpr const char* kMsgCopySameCase = "Can not copy loads from the same load case.";
inline constexpr const char* kMsgCopyZeroFactor = "Multiplication factor can not be 0.";

}  // namespace loads

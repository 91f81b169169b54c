// The MIT_ words: item types, fixed names, owners, ways of opening and section markers.
#pragma once

namespace burrowmark {

// Item types.
inline constexpr wchar_t MIT_HF_ROOT[] = L"MIT_HF_ROOT";              // the root node of the editor's tree
inline constexpr wchar_t MIT_GROUP_GENERAL[] = L"MIT_GROUP_GENERAL";  // every group
inline constexpr wchar_t MIT_PATH[] = L"MIT_PATH";                    // a folder shortcut
inline constexpr wchar_t MIT_DRIVE[] = L"MIT_DRIVE";                  // one drive of the Drives group
inline constexpr wchar_t MIT_OPENALL[] = L"MIT_OPENALL";              // opens all folder shortcuts of its level

// Names of fixed groups and entries; some are types and owners too.
inline constexpr wchar_t MIT_GROUP_USER[] = L"MIT_GROUP_USER";        // the personal group
inline constexpr wchar_t MIT_PATHS_DRIVES[] = L"MIT_PATHS_DRIVES";    // the Drives group
inline constexpr wchar_t MIT_HF_DRIVES_SEP[] = L"MIT_HF_DRIVES_SEP";  // its separator
inline constexpr wchar_t MIT_PATHS_SYSTEM[] = L"MIT_PATHS_SYSTEM";    // the System Folders group and its sub-groups
inline constexpr wchar_t MIT_PATHS_SYSTEM_W[] = L"MIT_PATHS_SYSTEM_W";
inline constexpr wchar_t MIT_PATHS_SYSTEM_P[] = L"MIT_PATHS_SYSTEM_P";
inline constexpr wchar_t MIT_PATHS_SYSTEM_PSM[] = L"MIT_PATHS_SYSTEM_PSM";
inline constexpr wchar_t MIT_PATHS_SYSTEM_A[] = L"MIT_PATHS_SYSTEM_A";
inline constexpr wchar_t MIT_PATHS_SYSTEM_ASM[] = L"MIT_PATHS_SYSTEM_ASM";
inline constexpr wchar_t MIT_PATHS_SYSTEM_O[] = L"MIT_PATHS_SYSTEM_O";  // reserved
inline constexpr wchar_t MIT_HF_SETTINGS[] = L"MIT_HF_SETTINGS";        // "Options"
inline constexpr wchar_t MIT_HF_HELP[] = L"MIT_HF_HELP";                // "Help"
inline constexpr wchar_t MIT_HF_HELP_SEP[] = L"MIT_HF_HELP_SEP";        // its separator
inline constexpr wchar_t MIT_HF_ORGANIZE[] = L"MIT_HF_ORGANIZE";        // "Organize Folders"

// Owners.
inline constexpr wchar_t kRootOwner[] = L"-1";  // owner of the menu's top level
inline constexpr wchar_t MIT_FL[] = L"MIT_FL";  // owner of the top entries of a cut or copied sub-tree

// Ways of opening a folder shortcut.
inline constexpr wchar_t MIT_PATH_SHORTCUT[] = L"MIT_PATH_SHORTCUT";  // single pane
inline constexpr wchar_t MIT_PATH_EXPLORER[] = L"MIT_PATH_EXPLORER";  // double pane

// Remark of an item that the program itself makes; the editor hides these.
inline constexpr wchar_t REMARK_AUTO[] = L"REMARK_AUTO";

}  // namespace burrowmark

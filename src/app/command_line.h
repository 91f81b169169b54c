// Commands from the command line and from other instances.
#pragma once

#include <cstdint>
#include <string>

#include "core/application.h"

namespace burrowmark {

class Editor;

inline constexpr wchar_t kExitCommand[] = L"/EXIT";    // ends the running instance
inline constexpr wchar_t kOrganizeCommand[] = L"/OF";  // opens the editor
inline constexpr wchar_t kAddCommand[] = L"/ADD";      // and adds the folder behind it
inline constexpr wchar_t kOpenCommand[] = L"/OPEN";    // and opens the file behind it
inline constexpr wchar_t kReportCommand[] = L"/FR";    // opens the report on the folder behind it

// Takes a command in: it is carried out when the program is at rest. Commands are told apart by their letter case; an
// unknown one does nothing.
void ProcessCommand(Application& app, Editor& editor, const std::wstring& Command);

// What follows a command of `length` characters and one separator, trimmed, without one pair of quotes around it.
std::wstring CommandArgument(const std::wstring& Command, std::size_t length);

// Hands the command line of this process to the instance that runs already, which may come to the front with it.
void HandOver(Application& app, std::uint32_t RegisteredMessage, const std::wstring& Command);

}  // namespace burrowmark

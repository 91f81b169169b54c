#include "options/shell_verbs.h"

#include <string>

#include "core/registry.h"
#include "core/services.h"

namespace burrowmark {
namespace {

constexpr RegistryKey kClasses = RegistryKey::kClassesRoot;
constexpr wchar_t kCommandKey[] = L"command";
constexpr wchar_t kCopyAddressFile[] = L"\\CopyAddress.exe";

// A verb: what it is for, its key and its text there, and the command line. The system puts the long name of what was
// clicked in place of "%L"; whoever is started takes all that is left of the line as the path.
struct Verb {
  const wchar_t* shell;
  const wchar_t* key;
  const wchar_t* text;
  std::wstring Application::*program;
  const wchar_t* arguments;
};

constexpr auto kProgram = &Application::AppCommand;
constexpr auto kCopyAddress = &Application::CopyAddressCommand;

constexpr Verb kVerbs[] = {
    {L"Directory\\shell", L"Organize Folder", L"&Organize Folder", kProgram, L" /ADD %L"},
    {L"Drive\\shell", L"Organize Drive", L"&Organize Drive", kProgram, L" /ADD %L"},
    {L"*\\shell", L"Copy Address", L"&Copy Address", kCopyAddress, L" %L"},
    {L"Directory\\shell", L"Copy Address", L"&Copy Address", kCopyAddress, L" %L"},
    {L"Drive\\shell", L"Copy Address", L"&Copy Address", kCopyAddress, L" %L"},
    {L"Directory\\shell", L"Folder Report", L"Folder &Report", kProgram, L" /FR %L"},
    {L"Drive\\shell", L"Folder Report", L"Folder &Report", kProgram, L" /FR %L"},
};

std::wstring KeyOf(const Verb& verb) { return std::wstring(verb.shell) + L"\\" + verb.key; }

}  // namespace

void AddShellVerbs(Application& app) {
  clsRegHandler registry(app.platform.registry);
  const bool canCopy = FileExists(app.platform.files, app.AppPath + kCopyAddressFile);
  for (const Verb& verb : kVerbs) {
    if (verb.program == kCopyAddress && !canCopy) continue;
    const std::wstring key = KeyOf(verb);
    registry.SetKeyValue(kClasses, key, {}, verb.text);
    registry.SetKeyValue(kClasses, key + L"\\" + kCommandKey, {}, app.*verb.program + verb.arguments);
  }
}

// A key goes only when it has none below it.
void RemoveShellVerbs(Application& app) {
  clsRegHandler registry(app.platform.registry);
  for (const Verb& verb : kVerbs) {
    registry.DeleteKey(kClasses, KeyOf(verb), kCommandKey);
    registry.DeleteKey(kClasses, verb.shell, verb.key);
  }
}

}  // namespace burrowmark

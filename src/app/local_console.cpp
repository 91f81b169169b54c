#include "app/local_console.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "app/start.h"
#include "core/text.h"

namespace burrowmark {
namespace {

struct AnswerWord {
  const char* word;
  std::int32_t answer;
};

constexpr AnswerWord kAnswers[] = {
    {"ok", kAnswerOk}, {"cancel", kAnswerCancel}, {"yes", kAnswerYes}, {"no", kAnswerNo}};

}  // namespace

struct LocalConsole::Command {
  const char* word;
  void (LocalConsole::*carry)(const std::string& argument);
  const char* help;
};

constexpr LocalConsole::Command LocalConsole::kCommands[] = {
    {"menu", &LocalConsole::ShowMenu, "menu              shows the menu with all its groups"},
    {"choose", &LocalConsole::Choose, "choose A|B|C      clicks the tray icon and then these entries"},
    {"answer", &LocalConsole::Answer,
     "answer yes TEXT   the next box whose text holds TEXT gets yes, no, cancel or ok"},
    {"run", &LocalConsole::RunProcess, "run /OF           starts a second process with this command line"},
    {"dump", &LocalConsole::Dump, "dump              shows what was launched and asked so far"},
    {"quit", &LocalConsole::Quit, "quit              ends the program"},
    {"help", &LocalConsole::Help, "help              shows this"},
};

LocalConsole::LocalConsole(LocalMachine& machine, std::istream& in, std::ostream& out)
    : machine_(machine), in_(in), out_(out) {
  machine_.windows.Input = [this] { return Next(); };
}

LocalConsole::~LocalConsole() { machine_.windows.Input = {}; }

bool LocalConsole::Next() {
  std::string line;
  if (!std::getline(in_, line)) line = "quit";
  try {
    Carry(line);
  } catch (const std::logic_error& error) {  // a box or a menu that the person didn't see coming
    out_ << "! " << error.what() << '\n';
  }
  TellWhatHappened();
  out_.flush();
  return true;
}

void LocalConsole::Carry(const std::string& line) {
  const std::size_t blank = line.find(' ');
  const std::string word = line.substr(0, blank);
  if (word.empty()) return;
  const auto* command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                     [&word](const Command& row) { return word == row.word; });
  if (command == std::end(kCommands)) {
    out_ << "unknown: " << word << " (help lists the commands)\n";
  } else {
    (this->*command->carry)(blank == std::string::npos ? std::string() : line.substr(blank + 1));
  }
}

void LocalConsole::ShowMenu(const std::string&) {
  Menus& menus = machine_.menus;
  ShowEntries(menus.GetSubMenu(menus.GetMenu(machine_.windows.Main()), 0), 0);
}

void LocalConsole::ShowEntries(MenuHandle menu, int level) {
  for (const LocalMenuEntry& entry : machine_.menus.Entries(menu)) {
    out_ << std::string(static_cast<std::size_t>(level) * 2, ' ');
    out_ << (entry.IsSeparator() ? "----" : ToUtf8(entry.text)) << (entry.popup != 0 ? " >" : "") << '\n';
    if (entry.popup != 0) ShowEntries(entry.popup, level + 1);
  }
}

void LocalConsole::Choose(const std::string& path) {
  MenuActions actions;
  for (const std::wstring& title : Split(FromUtf8(path), L'|')) actions.Click(title);
  machine_.user.NextMenu(actions);
  machine_.user.ClickTray(LocalUser::Button::kLeft);
}

void LocalConsole::RunProcess(const std::string& commandLine) {
  const auto other = machine_.AnotherProcess();
  RunBurrowmark(other->platform(), FromUtf8(commandLine));
}

void LocalConsole::Answer(const std::string& answer) {
  const std::size_t blank = answer.find(' ');
  const std::string word = answer.substr(0, blank);
  const auto* row = std::find_if(std::begin(kAnswers), std::end(kAnswers),
                                 [&word](const AnswerWord& known) { return word == known.word; });
  if (row == std::end(kAnswers)) {
    out_ << "answer with yes, no, cancel or ok\n";
  } else {
    machine_.user.NextBox(blank == std::string::npos ? std::wstring() : FromUtf8(answer.substr(blank + 1)),
                          row->answer);
  }
}

void LocalConsole::Dump(const std::string&) {
  launchesTold_ = 0;
  boxesTold_ = 0;
}

void LocalConsole::Quit(const std::string&) { machine_.windows.DestroyMainWindow(machine_.windows.Main()); }

void LocalConsole::Help(const std::string&) {
  for (const Command& command : kCommands) out_ << command.help << '\n';
}

void LocalConsole::TellWhatHappened() {
  for (; launchesTold_ < machine_.shell.Launches.size(); ++launchesTold_) {
    const Launch& launch = machine_.shell.Launches[launchesTold_];
    out_ << "launched: " << ToUtf8(launch.verb + L' ' + launch.file + L' ' + launch.parameters) << '\n';
  }
  for (; boxesTold_ < machine_.dialogs.Shown.size(); ++boxesTold_) {
    const ShownBox& box = machine_.dialogs.Shown[boxesTold_];
    out_ << "box: " << ToUtf8(box.text) << " -> " << box.answer << '\n';
  }
}

}  // namespace burrowmark

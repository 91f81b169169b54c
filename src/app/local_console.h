// The console of the native program: a person at the local machine who types what to do.
#pragma once

#include <iosfwd>
#include <string>

#include "platform/local/machine.h"

namespace burrowmark {

// Reads a command a line and carries it out whenever the program has nothing to do; at the end of the input the program
// is told to go. "help" lists the commands.
class LocalConsole {
 public:
  // All must outlive this object. The machine's source of input becomes this console.
  LocalConsole(LocalMachine& machine, std::istream& in, std::ostream& out);
  ~LocalConsole();
  LocalConsole(const LocalConsole&) = delete;
  LocalConsole& operator=(const LocalConsole&) = delete;

 private:
  struct Command;
  static const Command kCommands[];

  bool Next();
  void Carry(const std::string& line);
  void ShowMenu(const std::string& argument);
  void Choose(const std::string& path);
  void RunProcess(const std::string& commandLine);
  void Answer(const std::string& answer);
  void Dump(const std::string& argument);
  void Help(const std::string& argument);
  void Quit(const std::string& argument);

  void ShowEntries(MenuHandle menu, int level);
  void TellWhatHappened();

  LocalMachine& machine_;
  std::istream& in_;
  std::ostream& out_;
  std::size_t launchesTold_ = 0;
  std::size_t boxesTold_ = 0;
};

}  // namespace burrowmark

// The entry point of the native program: Burrowmark over a machine kept in a folder, with a person at its console.
#include <iostream>

#include "app/local_console.h"
#include "app/start.h"
#include "platform/characters.h"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: burrowmark MACHINE-FOLDER [COMMAND-LINE]\n";
    return 2;
  }
  std::wstring commandLine;
  for (int i = 2; i < argc; ++i) commandLine += (i > 2 ? L" " : L"") + burrowmark::FromUtf8(argv[i]);
  burrowmark::LocalMachine machine(argv[1]);
  burrowmark::LocalConsole console(machine, std::cin, std::cout);
  burrowmark::RunBurrowmark(machine.platform(), commandLine);
  return 0;
}

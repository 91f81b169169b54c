// Threads of the system.
#pragma once

#include <windows.h>

#include <functional>

namespace burrowmark {

// Runs `work`, which throws nothing, on a thread of its own. The handle is the caller's to close; null if the system
// gives no thread. For every thread of the program: on a busy machine one in some ten thousand that std::thread starts
// never comes to its work, with the toolchain's runtime of 2022.
HANDLE StartThread(std::function<void()> work);

}  // namespace burrowmark

// Entries of a store that leave it and, where it is the one behind the menu, the native menu.
#pragma once

#include <functional>

#include "core/application.h"

namespace burrowmark {

// Takes the fitting entries out of the store. Only of the main store do they leave the native menu too, and the
// positions of those that stay are numbered anew.
void RemoveEntries(Application& app, clsMenuCollection& store, const std::function<bool(const clsMenuItem&)>& fits);

// Gives every entry its place among those of its native owner.
void NumberPositions(const clsMenuCollection& store);

}  // namespace burrowmark

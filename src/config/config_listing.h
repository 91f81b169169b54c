// The tree as a plain text for people.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// The listing of a document: its file, five counts and the tree, one entry a line, a blank for each level. Lines
// end in CR and LF. Throws OverflowFailure for counts past 32,767.
std::wstring WriteTextReport(const Application& app, const Document& document);

}  // namespace burrowmark

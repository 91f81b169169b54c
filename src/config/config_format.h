// The form of the configuration file: one flat run of tokens, each closed by a NUL.
//
// A file is a run of sections: a marker token, its content and "[END:]". The personal group's section and, if the user
// wants that group, the System Folders' hold item records of 22 tokens each; five more hold one text each. The
// characters are those of the ANSI code page or, where a text wouldn't survive that, UTF-8 behind a first token that
// says so.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/document.h"
#include "core/menu_item.h"
#include "platform/system_facts.h"

namespace burrowmark {

inline constexpr std::wstring_view kUserSection = L"[MIT_GROUP_USER:]";
inline constexpr std::wstring_view kSystemSection = L"[MIT_PATHS_SYSTEM:]";
inline constexpr std::wstring_view kSectionEnd = L"[END:]";
inline constexpr std::wstring_view kUtf8Marker = L"[UTF-8:]";

inline constexpr std::size_t kRecordFields = 22;

// Markers of the summary sections in the file's order, and the texts that stand in them.
struct SummarySection {
  std::wstring_view marker;
  std::wstring ConfigSummary::*text;
};

inline constexpr SummarySection kSummarySections[] = {
    {L"[SUMMARY_TITLE:]", &ConfigSummary::SummaryTitle},
    {L"[SUMMARY_AUTHOR:]", &ConfigSummary::SummaryAuthor},
    {L"[SUMMARY_CATEGORY:]", &ConfigSummary::SummaryCategory},
    {L"[SUMMARY_KEYWORDS:]", &ConfigSummary::SummaryKeywords},
    {L"[SUMMARY_COMMENTS:]", &ConfigSummary::SummaryComments},
};

// The section with this marker, or none.
const SummarySection* FindSummarySection(std::wstring_view marker);

// True for an item that no file holds: separators, the fixed entries and the drives, which every start makes anew.
bool IsLeftOutOfFiles(const clsMenuItem& item);

// The text of a file's bytes, without the token that marks UTF-8; `utf8` says whether it was there.
std::wstring DecodeConfig(std::string_view bytes, const SystemFacts& system, bool& utf8);
// The bytes of a file's text: ANSI, or UTF-8 behind its marker where `utf8` asks for it or a character needs it.
std::string EncodeConfig(std::wstring_view text, const SystemFacts& system, bool utf8);

// The tokens of a text, which must outlive them. What stands behind the last NUL is no token.
std::vector<std::wstring_view> SplitTokens(std::wstring_view text);

// Adds a token; a NUL within it would end it and is left out.
void AppendToken(std::wstring& text, std::wstring_view token);

// Adds the sections of the texts that aren't empty.
void AppendSummary(std::wstring& text, const ConfigSummary& summary);

}  // namespace burrowmark

#pragma once
// The keyword lists of the phrase handler and the lookup that allows abbreviations and synonyms.
#include <string>
#include <string_view>

namespace tarvo::lp {

enum class KeywordList { first, second, further };

// Looks `word` up in `list`: the first entry, in the list's alphabetical order, that begins with
// the whole word is taken, so any leading part of a keyword will do and an ambiguous one means the
// first candidate. A synonym entry (ALIAS:TARGET) yields its target. Returns false, and leaves
// `key` equal to the word, when no entry fits.
bool lookup_keyword(KeywordList list, std::string_view word, std::string& key);

}  // namespace tarvo::lp

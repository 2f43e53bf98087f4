// Regular expressions (ECMAScript). A file that includes <regex> takes seconds to compile, so only
// pattern.cpp does.
#pragma once

#include <string>
#include <vector>

// A match: the whole match, then the groups of the pattern; "" for a group that took no part.
using Match = std::vector<std::string>;

// Matches the whole of `text`. Returns an empty Match if it doesn't.
Match MatchWhole(const std::string& text, const std::string& pattern);

// Returns whether any part of `text` matches.
bool Contains(const std::string& text, const std::string& pattern);

// Returns all matches in `text`, from left to right.
std::vector<Match> MatchAll(const std::string& text, const std::string& pattern);

// Replaces each match in `text`. `replacement` may contain groups: $1.
std::string ReplaceAll(const std::string& text, const std::string& pattern, const std::string& replacement);

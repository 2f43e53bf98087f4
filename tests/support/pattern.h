// Regular expressions (ECMAScript). Only pattern.cpp includes <regex>, because a file that does takes seconds
// to compile.
#pragma once

#include <string>
#include <vector>

// The text that matches a pattern, followed by the text of each group; "" for a group that matches nothing.
using Match = std::vector<std::string>;

// Matches the whole of `text`. Returns an empty Match if the pattern doesn't match.
Match MatchWhole(const std::string& text, const std::string& pattern);

// Returns whether the pattern matches any part of `text`.
bool Contains(const std::string& text, const std::string& pattern);

// Returns all matches in `text`, from left to right.
std::vector<Match> MatchAll(const std::string& text, const std::string& pattern);

// Replaces each match in `text`. `replacement` may refer to groups, such as $1.
std::string ReplaceAll(const std::string& text, const std::string& pattern, const std::string& replacement);

#include "tests/support/pattern.h"

#include <map>
#include <regex>

namespace {

const std::regex& Compiled(const std::string& pattern) {
    static std::map<std::string, std::regex> compiled;
    const auto known = compiled.find(pattern);
    return known != compiled.end() ? known->second : compiled.emplace(pattern, pattern).first->second;
}

Match Groups(const std::smatch& match) {
    return {match.begin(), match.end()};
}

}  // namespace

Match MatchWhole(const std::string& text, const std::string& pattern) {
    std::smatch match;
    std::regex_match(text, match, Compiled(pattern));
    return Groups(match);
}

bool Contains(const std::string& text, const std::string& pattern) {
    return std::regex_search(text, Compiled(pattern));
}

std::vector<Match> MatchAll(const std::string& text, const std::string& pattern) {
    std::vector<Match> matches;
    const std::regex& compiled = Compiled(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), compiled), end; match != end; ++match) {
        matches.push_back(Groups(*match));
    }
    return matches;
}

std::string ReplaceAll(const std::string& text, const std::string& pattern, const std::string& replacement) {
    return std::regex_replace(text, Compiled(pattern), replacement);
}

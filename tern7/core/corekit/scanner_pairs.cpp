#include <algorithm>
#include <bitset>

#include <tern7/core/corekit/scanner.h>

namespace tern7 {

namespace {

/// The words of a comma list: by number where the scanner knows them, else by text.
class TWordSet {
public:
    TWordSet(std::string_view list, const TKVocabulary& vocabulary) {
        while (!list.empty()) {
            const std::string word = LowerCase(GetBeforeSep(list, ","));
            const uint8_t code = word.empty() ? uint8_t{0} : vocabulary.CodeOf(word);
            if (code != 0)
                known.set(code);
            else if (!word.empty())
                unknown.push_back(word);
            list = GetAfterSep(list, ",");
        }
    }
    bool Has(uint8_t code, std::string_view token) const {
        if (code != 0) return known[code];
        return !unknown.empty() &&
               std::find(unknown.begin(), unknown.end(), token) != unknown.end();
    }

private:
    std::bitset<256> known;
    TStrings unknown;
};

} // namespace

bool TKScanner::ScanToPair(std::string_view open, std::string_view close, std::string_view skip,
                           std::string_view words) {
    const std::array<std::string_view, 4> arguments{open, close, skip, words};
    const auto isSame = [&](const TPairScan& scan) {
        return std::equal(arguments.begin(), arguments.end(), scan.arguments.begin());
    };
    auto scan = std::find_if(pairScans.begin(), pairScans.end(), isSame);
    if (scan == pairScans.end()) scan = pairScans.insert(scan, MakePairScan(arguments));
    return scan->answers[position];
}

TKScanner::TPairScan
TKScanner::MakePairScan(const std::array<std::string_view, 4>& arguments) const {
    const TWordSet open(arguments[0], vocabulary), close(arguments[1], vocabulary);
    const TWordSet skip(arguments[2], vocabulary), words(arguments[3], vocabulary);
    struct TOpen {
        size_t token;
        size_t found;   // words found before it
        size_t passing; // how many "and" may pass at the depth inside
    };
    TPairScan scan;
    std::copy(arguments.begin(), arguments.end(), scan.arguments.begin());
    scan.answers.resize(tokens.size());
    std::vector<TOpen> stack{{0, 0, 0}};
    size_t found = 0;
    const auto closeTop = [&] {
        scan.answers[stack.back().token] = found > stack.back().found;
        stack.pop_back();
    };
    for (size_t i = 0; i < tokens.size(); ++i) {
        const uint8_t code = tokens[i].code;
        const std::string_view token = code == 0 ? TokStr(tokens[i]) : std::string_view();
        if (open.Has(code, token)) {
            stack.push_back({i, found, 0});
        } else if (close.Has(code, token)) {
            if (stack.size() > 1) closeTop();
        } else if (skip.Has(code, token)) {
            ++stack.back().passing;
            found += words.Has(code, token) ? 1 : 0;
        } else if (words.Has(code, token)) {
            const bool isAnd = stack.back().passing > 0 && TokStr(tokens[i]) == "and";
            if (isAnd)
                --stack.back().passing;
            else
                ++found;
        }
    }
    while (stack.size() > 1)
        closeTop();
    return scan;
}

} // namespace tern7

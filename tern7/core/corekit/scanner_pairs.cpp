#include <algorithm>

#include <tern7/core/corekit/scanner.h>

namespace tern7 {

namespace {

enum TRole : uint8_t { rOpen = 1, rClose = 2, rSkip = 4, rWanted = 8, rAnd = 16 };

/// What words are to a scan: by number where the vocabulary knows them, else by text.
class TRoles {
public:
    explicit TRoles(const TKVocabulary& words) : vocabulary(words) {}

    void Add(std::string_view list, TRole role) {
        while (!list.empty()) {
            const std::string word = LowerCase(GetBeforeSep(list, ","));
            const uint8_t code = word.empty() ? uint8_t{0} : vocabulary.CodeOf(word);
            if (code != 0)
                known[code] |= role;
            else
                unknown.emplace_back(word, role);
            list = GetAfterSep(list, ",");
        }
    }
    bool NeedsText() const { return !unknown.empty(); }
    uint8_t Of(uint8_t code) const { return known[code]; }
    uint8_t Of(std::string_view token) const {
        uint8_t roles = 0;
        for (const auto& [word, role] : unknown)
            if (word == token) roles |= role;
        return roles;
    }

private:
    const TKVocabulary& vocabulary;
    std::array<uint8_t, 256> known{};
    std::vector<std::pair<std::string, uint8_t>> unknown;
};

/// Counts wanted words and keeps what was counted when each bracket opened.
class TPairCounter {
public:
    explicit TPairCounter(std::vector<bool>& open) : answers(open) {}

    void Take(size_t token, uint8_t roles) {
        if (roles & rOpen) {
            stack.push_back({token, found, 0});
        } else if (roles & rClose) {
            if (stack.size() > 1) CloseTop();
        } else if ((roles & rAnd) && stack.back().passing > 0) {
            --stack.back().passing;
        } else {
            if (roles & rSkip) ++stack.back().passing;
            if (roles & rWanted) ++found;
        }
    }
    void CloseAll() {
        while (stack.size() > 1)
            CloseTop();
    }

private:
    struct TOpen {
        size_t token;
        size_t found;   // words found before it
        size_t passing; // how many "and" may pass at the depth inside
    };
    std::vector<bool>& answers;
    std::vector<TOpen> stack{{0, 0, 0}};
    size_t found = 0;

    void CloseTop() {
        answers[stack.back().token] = found > stack.back().found;
        stack.pop_back();
    }
};

} // namespace

const std::vector<bool>& TKScanner::PairScan(std::string_view open, std::string_view close,
                                             std::string_view skip, std::string_view words) {
    const std::array<std::string_view, 4> arguments{open, close, skip, words};
    const auto isSame = [&](const TPairScan& scan) {
        return std::equal(arguments.begin(), arguments.end(), scan.arguments.begin());
    };
    const auto found = std::find_if(pairScans.begin(), pairScans.end(), isSame);
    if (found != pairScans.end()) return found->answers;
    return pairScans.emplace_back(MakePairScan(arguments)).answers;
}

TKScanner::TPairScan
TKScanner::MakePairScan(const std::array<std::string_view, 4>& arguments) const {
    TRoles roles(*vocabulary);
    roles.Add(arguments[0], rOpen);
    roles.Add(arguments[1], rClose);
    roles.Add(arguments[2], rSkip);
    roles.Add(arguments[3], rWanted);
    roles.Add("and", rAnd);

    TPairScan scan;
    std::copy(arguments.begin(), arguments.end(), scan.arguments.begin());
    scan.answers.resize(tokens.Count());
    TPairCounter counter(scan.answers);
    for (size_t i = 0; i < tokens.Count(); ++i) {
        const uint8_t code = tokens.Code(i);
        const bool byText = code == 0 && roles.NeedsText();
        const uint8_t role = byText ? roles.Of(TokStr(i)) : roles.Of(code);
        if (role != 0) counter.Take(i, role);
    }
    counter.CloseAll();
    return scan;
}

} // namespace tern7

#include <tern7/core/corekit/ini_text.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/messages.h>
#include <tern7/core/corekit/numbers.h>

namespace tern7 {

namespace {

constexpr std::string_view EncodedSuffix = ".Encoded";

/// The name of a header line, without CR LF; false when the line is no header.
bool IsHeader(std::string_view line, std::string_view& name) {
    if (line.empty() || line.front() != '[') return false;
    line = TrimRight(line);
    if (line.size() < 2 || line.back() != ']') return false;
    name = line.substr(1, line.size() - 2);
    return true;
}

/// Offset behind the line that begins at `start`.
size_t BehindLine(std::string_view text, size_t start) {
    const size_t end = text.find('\n', start);
    return end == std::string_view::npos ? text.size() : end + 1;
}

std::string_view WithoutLineEnd(std::string_view line) {
    if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

/// As StartsText; mostly the first letter differs, or all is the same.
bool StartsKey(std::string_view text, std::string_view key) {
    if (text.size() < key.size() || (!key.empty() && LowerChar(text[0]) != LowerChar(key[0])))
        return false;
    return std::memcmp(text.data(), key.data(), key.size()) == 0 || StartsText(text, key);
}

void DropEmptyAtEnd(TStrings& lines) {
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
}

} // namespace

TStrings ReadSLSections(const TStrings& lines) {
    TStrings names;
    std::string_view name;
    for (const std::string& line : lines)
        if (IsHeader(line, name)) names.emplace_back(name);
    return names;
}

TStrings XReadSLSectionValues(const TStrings& lines, std::string_view section) {
    TStrings values;
    std::string_view name;
    auto line = std::find_if(lines.begin(), lines.end(), [&](const std::string& candidate) {
        return IsHeader(candidate, name) && SameText(name, section);
    });
    if (line == lines.end()) return values;
    for (++line; line != lines.end() && !IsHeader(*line, name); ++line)
        values.push_back(*line);
    DropEmptyAtEnd(values);
    return values;
}

TStrings TKIniSection::Lines() const {
    TStrings lines;
    TKLineReader reader(body);
    for (std::string_view each; reader.Next(each);)
        lines.emplace_back(each);
    DropEmptyAtEnd(lines);
    return lines;
}

std::optional<TKIniSection::TFound>
TKIniSection::FindWithin(size_t from, size_t to, std::string_view key, bool orEncoded) const {
    for (; from < to; from = BehindLine(body, from)) {
        std::string_view rest = body.substr(from, to - from);
        // a key holds no line end, so that it ends in this line
        if (!StartsKey(rest, key)) continue;
        rest.remove_prefix(key.size());
        const bool encoded = orEncoded && StartsText(rest, EncodedSuffix);
        if (encoded) rest.remove_prefix(EncodedSuffix.size());
        if (rest.empty() || rest.front() != '=') continue;
        const size_t value = to - rest.size() + 1;
        next = BehindLine(body, value);
        return TFound{WithoutLineEnd(body.substr(value, next - value)), encoded};
    }
    return std::nullopt;
}

std::optional<TKIniSection::TFound> TKIniSection::Find(std::string_view key, bool orEncoded) const {
    const size_t start = next;
    if (auto found = FindWithin(start, body.size(), key, orEncoded)) return found;
    return FindWithin(0, start, key, orEncoded);
}

bool TKIniSection::Has(std::string_view key) const {
    return Find(key, false).has_value();
}

std::string_view TKIniSection::TakeNext(size_t keySize) const {
    const size_t value = next + keySize + 1;
    next = BehindLine(body, value);
    return WithoutLineEnd(body.substr(value, next - value));
}

std::string_view TKIniSection::FindRaw(std::string_view key) const {
    const auto found = Find(key, false);
    return found ? found->value : std::string_view();
}

std::string TKIniSection::FindText(std::string_view key) const {
    const auto found = Find(key, true);
    if (!found) return {};
    return found->encoded ? DecodePercent(found->value) : std::string(found->value);
}

void TKIniSection::FailValue(std::string_view key, std::string_view value) const {
    throw EKTernError(FormatMessage(messages::WrongValueOfKey, {key, name, value}));
}

int TKIniSection::ToInt(std::string_view key, std::string_view value, int otherwise) const {
    value = Trim(value);
    if (value.empty()) return otherwise;
    const auto number = StrToIntExact(value);
    if (!number) FailValue(key, value);
    return *number;
}

bool TKIniSection::ToBool(std::string_view key, std::string_view value, bool otherwise) const {
    value = Trim(value);
    if (value.empty()) return otherwise;
    const auto truth = NStrToBool(value);
    if (!truth) FailValue(key, value);
    return *truth;
}

int TKIniSection::Line() const {
    const auto before = static_cast<size_t>(name.data() - origin);
    return 1 + static_cast<int>(CharCount(std::string_view(origin, before), '\n'));
}

TKIniText::TKIniText(std::string_view text) {
    Cut(text);
}

void TKIniText::Cut(std::string_view text) {
    std::string_view name;
    size_t bodyStart = 0;
    bool open = false;
    std::string_view openName;
    const auto close = [&](size_t end) {
        if (open)
            sections.emplace_back(openName, text.substr(bodyStart, end - bodyStart), text.data());
    };
    for (size_t hit = text.find('['); hit != std::string_view::npos;
         hit = text.find('[', hit + 1)) {
        if (hit > 0 && text[hit - 1] != '\n') continue;
        const size_t behind = BehindLine(text, hit);
        if (!IsHeader(text.substr(hit, behind - hit), name)) continue;
        close(hit);
        open = true;
        openName = name;
        bodyStart = behind;
    }
    close(text.size());
}

void TKIniText::Index() const {
    if (!cells.empty()) return;
    const size_t mask = std::bit_ceil(2 * sections.size() + 1) - 1;
    cells.assign(mask + 1, 0);
    std::vector<uint32_t> nameOf(sections.size());
    std::vector<uint32_t> firstOf; // by name: its first section
    for (uint32_t i = 0; i < sections.size(); ++i) {
        size_t slot = TTextHash()(sections[i].Name()) & mask;
        while (cells[slot] != 0 &&
               !SameText(sections[firstOf[cells[slot] - 1]].Name(), sections[i].Name()))
            slot = (slot + 1) & mask;
        if (cells[slot] == 0) {
            firstOf.push_back(i);
            cells[slot] = static_cast<uint32_t>(firstOf.size());
        }
        nameOf[i] = cells[slot] - 1;
    }
    starts.assign(firstOf.size() + 1, 0);
    for (uint32_t each : nameOf)
        ++starts[each + 1];
    for (size_t i = 1; i < starts.size(); ++i)
        starts[i] += starts[i - 1];
    positions.resize(sections.size());
    std::vector<uint32_t> fill(starts.begin(), starts.end() - 1);
    for (uint32_t i = 0; i < sections.size(); ++i)
        positions[fill[nameOf[i]]++] = i;
}

const TKIniSection* TKIniText::Find(std::string_view name) const {
    return FindFrom(0, name);
}

const TKIniSection* TKIniText::FindFrom(size_t position, std::string_view name) const {
    Index();
    const size_t mask = cells.size() - 1;
    for (size_t slot = TTextHash()(name) & mask; cells[slot] != 0; slot = (slot + 1) & mask) {
        const size_t number = cells[slot] - 1;
        const auto first = positions.begin() + starts[number];
        if (!SameText(sections[*first].Name(), name)) continue;
        const auto last = positions.begin() + starts[number + 1];
        const auto found = std::lower_bound(first, last, position);
        return &sections[found == last ? *first : *found];
    }
    return nullptr;
}

size_t TKIniText::PositionOf(const TKIniSection& section) const {
    return static_cast<size_t>(&section - sections.data());
}

bool TKLineReader::Next(std::string_view& line) {
    if (rest.empty()) return false;
    const size_t behind = BehindLine(rest, 0);
    line = WithoutLineEnd(rest.substr(0, behind));
    rest.remove_prefix(behind);
    return true;
}

} // namespace tern7

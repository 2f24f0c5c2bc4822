#include <tern7/sql/database_url.h>

#include <algorithm>
#include <optional>

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>

namespace tern7 {

namespace {

using TDriver = TKDatabaseURL::TDriver;

struct TScheme {
    std::string_view prefix;
    TDriver driver;
    bool isPath;
};

/// The first scheme of a driver is the one that is shown.
constexpr TScheme schemes[] = {
    {"sqlite:", TDriver::SQLite, true},          {"postgresql://", TDriver::PostgreSQL, false},
    {"postgres://", TDriver::PostgreSQL, false}, {"mysql://", TDriver::MySQL, false},
    {"mariadb://", TDriver::MySQL, false},       {"odbc:", TDriver::ODBC, true},
};

constexpr std::string_view postgresqlOptions[] = {"host",    "sslmode", "sslrootcert",
                                                  "sslcert", "sslkey",  "connect_timeout"};
constexpr std::string_view mysqlOptions[] = {"socket"};

int HexValue(char c) {
    if (IsDigit(c)) return c - '0';
    const char lower = LowerChar(c);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string PercentDecoded(std::string_view text) {
    std::string decoded;
    for (size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? HexValue(text[i + 1]) : -1;
        const int low = high >= 0 ? HexValue(text[i + 2]) : -1;
        if (low < 0) {
            decoded += text[i];
        } else {
            decoded += static_cast<char>(high * 16 + low);
            i += 2;
        }
    }
    return decoded;
}

/// Everything but letters, digits and what can not be taken for a separator.
std::string PercentEncoded(std::string_view text) {
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (IsDigit(c) || (LowerChar(c) >= 'a' && LowerChar(c) <= 'z') ||
            std::string_view("-._").find(c) != std::string_view::npos)
            encoded += c;
        else
            encoded += {'%', hexDigits[code >> 4], hexDigits[code & 15]};
    }
    return encoded;
}

template <size_t Count>
bool Contains(const std::string_view (&names)[Count], std::string_view name) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// Drivers take options as one text; what would end a value there is refused.
bool IsPlainValue(std::string_view value) {
    return !value.empty() && value.find_first_of(" ;'\"\\=") == std::string_view::npos;
}

void ReadOptions(std::string_view text, TKDatabaseURL& url) {
    while (!text.empty()) {
        const std::string_view pair = GetBeforeSep(text, "&");
        text = GetAfterSep(text, "&");
        const std::string name(GetBeforeSep(pair, "="));
        std::string value = PercentDecoded(GetAfterSep(pair, "="));
        const bool known = url.driver == TDriver::PostgreSQL ? Contains(postgresqlOptions, name)
                                                             : Contains(mysqlOptions, name);
        if (!known || !IsPlainValue(value))
            throw EKDBInfoError(FormatMessage(messages::WrongDatabaseOption, {known ? name : "?"}));
        url.options.emplace_back(name, std::move(value));
    }
}

void ReadHost(std::string_view text, TKDatabaseURL& url) {
    std::string_view port;
    if (text.starts_with('[')) { // an IPv6 address
        url.host = std::string(GetBeforeSep(text.substr(1), "]"));
        port = GetAfterSep(text, "]");
        if (!port.empty() && port[0] != ':')
            throw EKDBInfoError(std::string(messages::WrongDatabaseAddress));
        port = GetAfterSep(port, ":");
    } else {
        url.host = PercentDecoded(GetBeforeSep(text, ":"));
        port = GetAfterSep(text, ":");
    }
    if (port.empty()) return;
    const std::optional<int> number = StrToIntExact(port);
    if (!number || *number < 1 || *number > 65535)
        throw EKDBInfoError(std::string(messages::WrongDatabasePort));
    url.port = *number;
}

/// user:password@host:port/name?options. A password may hold anything, so user and password end at
/// the last "@".
void ReadServer(std::string_view text, TKDatabaseURL& url) {
    if (const size_t at = text.rfind('@'); at != std::string_view::npos) {
        const std::string_view account = text.substr(0, at);
        url.user = PercentDecoded(GetBeforeSep(account, ":"));
        url.password = PercentDecoded(GetAfterSep(account, ":"));
        text.remove_prefix(at + 1);
    }
    ReadOptions(GetAfterSep(text, "?"), url);
    text = GetBeforeSep(text, "?");
    ReadHost(GetBeforeSep(text, "/"), url);
    url.database = PercentDecoded(GetAfterSep(text, "/"));
}

} // namespace

TKDatabaseURL ParseDatabaseURL(std::string_view text) {
    const auto scheme =
        std::find_if(std::begin(schemes), std::end(schemes),
                     [&](const TScheme& each) { return StartsText(text, each.prefix); });
    if (scheme == std::end(schemes) || text.find('\0') != std::string_view::npos)
        throw EKDBInfoError(std::string(messages::WrongDatabaseAddress));
    TKDatabaseURL url;
    url.driver = scheme->driver;
    text.remove_prefix(scheme->prefix.size());
    if (scheme->isPath)
        url.database = std::string(text);
    else
        ReadServer(text, url);
    if (url.database.empty()) throw EKDBInfoError(std::string(messages::NoDatabaseName));
    return url;
}

std::string TKDatabaseURL::DisplayText() const {
    const auto scheme = std::find_if(std::begin(schemes), std::end(schemes),
                                     [this](const TScheme& each) { return each.driver == driver; });
    std::string text(scheme->prefix);
    if (driver == TDriver::ODBC && database.find('=') != std::string::npos) return text + "...";
    if (scheme->isPath) return text + database;
    if (!user.empty()) text += user + "@";
    text += host;
    if (port != 0) text += ":" + std::to_string(port);
    return text + "/" + database;
}

std::string TKDatabaseURL::Address() const {
    const auto scheme = std::find_if(std::begin(schemes), std::end(schemes),
                                     [this](const TScheme& each) { return each.driver == driver; });
    std::string text(scheme->prefix);
    if (driver == TDriver::ODBC && database.find('=') != std::string::npos) return {};
    if (scheme->isPath) return text + database;
    if (!user.empty()) text += PercentEncoded(user) + "@";
    text += host.find(':') == std::string::npos ? PercentEncoded(host) : host;
    if (port != 0) text += ":" + std::to_string(port);
    text += "/" + PercentEncoded(database);
    for (const auto& [name, value] : options)
        text += (&name == &options.front().first ? "?" : "&") + name + "=" + PercentEncoded(value);
    return text;
}

} // namespace tern7

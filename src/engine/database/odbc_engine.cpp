// Servers without a native engine through unixODBC: SQL Server with the FreeTDS driver,
// or whatever driver the connection text names.
#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

#include "database/engine.h"
#include "failures/errors.h"
#include "text/text_pieces.h"
#include "text/utf8.h"

namespace tallix::ado {

namespace {

constexpr SQLULEN kConnectSeconds = 10;
constexpr std::string_view kSqlServerDriver = "FreeTDS";

// Rows are fetched in blocks: row by row takes five times as long. A cell starts with
// the bytes that its column declares, at most kCellBytes.
constexpr std::size_t kBlockRows = 256;
constexpr std::size_t kBlockBytes = std::size_t{4} << 20;
constexpr std::size_t kCellBytes = 1024;
constexpr std::size_t kBytesPerCharacter = 4;

/// What is particular about a driver, found by a part of its name.
struct DriverTraits {
    std::string_view mark;
    Server server;
    std::string_view options;   ///< further parts of the connection text
    std::string_view settings;  ///< statement that opens a session
    bool wide;                  ///< takes statements as UTF-16; the driver manager would garble UTF-8
};

constexpr std::string_view kPostgresSettings =
    "SET client_encoding TO 'UTF8'; SET synchronize_seqscans TO off; SET max_parallel_workers_per_gather TO "
    "0";

constexpr std::array kDrivers{
    DriverTraits{"psqlodbca", Server::Postgres, "", kPostgresSettings, false},
    DriverTraits{"postgresql ansi", Server::Postgres, "", kPostgresSettings, false},
    DriverTraits{"", Server::SqlServer, "TDS_Version=7.4;ClientCharset=UTF-8;", "", true},
};

const DriverTraits& TraitsOf(const std::string& driver) {
    const std::string name = LowerCase(driver);
    return *std::find_if(kDrivers.begin(), kDrivers.end(), [&](const DriverTraits& traits) {
        return name.find(traits.mark) != std::string::npos;
    });
}

bool Succeeded(SQLRETURN code) {
    return SQL_SUCCEEDED(code);
}

std::string Diagnosis(SQLSMALLINT type, SQLHANDLE handle) {
    std::array<SQLCHAR, 6> state{};
    std::array<SQLCHAR, 1024> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN code = SQLGetDiagRec(type, handle, 1, state.data(), &native, text.data(),
                                         static_cast<SQLSMALLINT>(text.size()), &length);
    if (!Succeeded(code)) return "the driver gives no reason";
    const std::string_view message = reinterpret_cast<const char*>(text.data());
    return std::string(message.substr(0, message.find_last_not_of(" \n") + 1));
}

/// An ODBC handle, freed with the object.
template <SQLSMALLINT kType>
class Handle {
public:
    explicit Handle(SQLHANDLE parent) {
        if (!Succeeded(SQLAllocHandle(kType, parent, &handle_))) throw DatabaseError("ODBC gives no handle");
    }
    ~Handle() { SQLFreeHandle(kType, handle_); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    SQLHANDLE Get() const { return handle_; }

    /// Throws DatabaseError with the driver's message where a call failed.
    void Check(SQLRETURN code) const {
        if (!Succeeded(code)) throw DatabaseError(Diagnosis(kType, handle_));
    }

private:
    SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

using Statement = Handle<SQL_HANDLE_STMT>;

SQLCHAR* Characters(const std::string& text) {
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.data()));
}

// ODBC takes the numbers of attributes in the place of a pointer.
SQLPOINTER Number(std::size_t value) {
    return reinterpret_cast<SQLPOINTER>(value);  // NOLINT(performance-no-int-to-ptr)
}

/// The cells of one column in a block of rows.
struct BoundColumn {
    std::size_t width = 0;  ///< bytes a cell, with the closing zero
    std::vector<char> text;
    std::vector<SQLLEN> lengths;
};

/// Fetches what a statement gives, in blocks. A cell that does not fit its column's width
/// makes the whole fetch start again with a greater one, so that nothing is ever cut.
class BlockFetch {
public:
    BlockFetch(const Statement& statement, std::vector<std::size_t>& widths);

    /// False when a width had to be raised.
    bool Run(RowArena& arena);

private:
    bool Append(const BoundColumn& column, std::size_t& width, SQLULEN row, RowArena& arena) const;

    const Statement& statement_;
    std::vector<std::size_t>& widths_;
    std::vector<BoundColumn> columns_;
    SQLULEN fetched_ = 0;
};

BlockFetch::BlockFetch(const Statement& statement, std::vector<std::size_t>& widths)
    : statement_(statement), widths_(widths), columns_(widths.size()) {
    std::size_t rowBytes = 1;
    for (const std::size_t width : widths) rowBytes += width;
    const std::size_t rows = std::clamp<std::size_t>(kBlockBytes / rowBytes, 1, kBlockRows);
    statement_.Check(SQLSetStmtAttr(statement.Get(), SQL_ATTR_ROW_ARRAY_SIZE, Number(rows), 0));
    statement_.Check(SQLSetStmtAttr(statement.Get(), SQL_ATTR_ROWS_FETCHED_PTR, &fetched_, 0));
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        BoundColumn& column = columns_[i];
        column.width = widths[i];
        column.text.resize(rows * column.width);
        column.lengths.resize(rows);
        statement_.Check(SQLBindCol(statement.Get(), static_cast<SQLUSMALLINT>(i + 1), SQL_C_CHAR,
                                    column.text.data(), static_cast<SQLLEN>(column.width),
                                    column.lengths.data()));
    }
}

bool BlockFetch::Run(RowArena& arena) {
    while (true) {
        const SQLRETURN code = SQLFetch(statement_.Get());
        if (code == SQL_NO_DATA) break;
        statement_.Check(code);
        bool fits = true;
        for (SQLULEN row = 0; row < fetched_; ++row) {
            for (std::size_t i = 0; i < columns_.size(); ++i)
                fits = Append(columns_[i], widths_[i], row, arena) && fits;
        }
        if (!fits) return false;
    }
    arena.Finish();
    return true;
}

bool BlockFetch::Append(const BoundColumn& column, std::size_t& width, SQLULEN row, RowArena& arena) const {
    const SQLLEN length = column.lengths[row];
    if (length == SQL_NULL_DATA) {
        arena.AppendNull();
        return true;
    }
    if (length == SQL_NO_TOTAL || static_cast<std::size_t>(length) >= column.width) {
        const std::size_t known = length == SQL_NO_TOTAL ? 0 : static_cast<std::size_t>(length) + 1;
        width = std::max({width, known, 2 * column.width});
        arena.AppendNull();
        return false;
    }
    arena.Append({column.text.data() + row * column.width, static_cast<std::size_t>(length)});
    return true;
}

class OdbcEngine : public Engine {
public:
    explicit OdbcEngine(const ConnectionParts& parts);
    ~OdbcEngine() override { SQLDisconnect(connection_.Get()); }
    OdbcEngine(const OdbcEngine&) = delete;
    OdbcEngine& operator=(const OdbcEngine&) = delete;

    Result Query(const std::string& statement) override;
    std::int64_t Execute(const std::string& statement) override;
    std::vector<std::string> KeyColumns(const std::string& table) override;
    Server Kind() const override { return traits_.server; }

private:
    /// Whether the statement did something; a delete of no rows says that it did not.
    bool Send(const Statement& statement, const std::string& text) const;

    const DriverTraits& traits_;
    Handle<SQL_HANDLE_ENV> environment_;
    Handle<SQL_HANDLE_DBC> connection_;
};

SQLHANDLE Versioned(const Handle<SQL_HANDLE_ENV>& environment) {
    environment.Check(SQLSetEnvAttr(environment.Get(), SQL_ATTR_ODBC_VERSION, Number(SQL_OV_ODBC3), 0));
    return environment.Get();
}

/// A value of the connection text, in braces where it could be taken for more than one.
std::string Braced(std::string_view value) {
    if (value.find_first_of(";{}[](),?*=!@ ") == std::string_view::npos) return std::string(value);
    std::string braced = "{";
    for (const char character : value) braced.append(character == '}' ? 2 : 1, character);
    return braced + "}";
}

std::string DriverText(const ConnectionParts& parts, const std::string& driver, const DriverTraits& traits) {
    const std::string port = parts.port == 0 ? std::string() : fmt::format("PORT={};", parts.port);
    return fmt::format("DRIVER={{{}}};SERVER={};{}DATABASE={};UID={};PWD={};{}", driver, parts.host, port,
                       Braced(parts.database), Braced(parts.user), Braced(parts.password), traits.options);
}

OdbcEngine::OdbcEngine(const ConnectionParts& parts)
    : traits_(TraitsOf(parts.driver)), environment_(SQL_NULL_HANDLE), connection_(Versioned(environment_)) {
    const std::string driver = parts.driver.empty() ? std::string(kSqlServerDriver) : parts.driver;
    const std::string text = DriverText(parts, driver, traits_);
    connection_.Check(
        SQLSetConnectAttr(connection_.Get(), SQL_ATTR_LOGIN_TIMEOUT, Number(kConnectSeconds), 0));
    connection_.Check(SQLDriverConnect(connection_.Get(), nullptr, Characters(text),
                                       static_cast<SQLSMALLINT>(text.size()), nullptr, 0, nullptr,
                                       SQL_DRIVER_NOPROMPT));
    if (!traits_.settings.empty()) OdbcEngine::Execute(std::string(traits_.settings));
}

std::vector<SQLWCHAR> Utf16(std::string_view text) {
    constexpr char32_t kPairs = 0x10000;
    std::vector<SQLWCHAR> units;
    units.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = DecodeUtf8(text, at);
        at += character.length;
        if (character.code < kPairs) {
            units.push_back(static_cast<SQLWCHAR>(character.code));
        } else {
            units.push_back(static_cast<SQLWCHAR>(0xD800 + ((character.code - kPairs) >> 10)));
            units.push_back(static_cast<SQLWCHAR>(0xDC00 + ((character.code - kPairs) & 0x3FF)));
        }
    }
    return units;
}

bool OdbcEngine::Send(const Statement& statement, const std::string& text) const {
    SQLRETURN code = SQL_ERROR;
    if (traits_.wide) {
        std::vector<SQLWCHAR> units = Utf16(text);
        code = SQLExecDirectW(statement.Get(), units.data(), static_cast<SQLINTEGER>(units.size()));
    } else {
        code = SQLExecDirect(statement.Get(), Characters(text), static_cast<SQLINTEGER>(text.size()));
    }
    if (code == SQL_NO_DATA) return false;
    statement.Check(code);
    return true;
}

std::int64_t OdbcEngine::Execute(const std::string& text) {
    const Statement statement(connection_.Get());
    if (!Send(statement, text)) return 0;
    SQLLEN rows = 0;
    statement.Check(SQLRowCount(statement.Get(), &rows));
    return std::max<SQLLEN>(rows, 0);
}

/// A column's name, and the bytes that a cell of it starts with.
std::pair<std::string, std::size_t> Describe(const Statement& statement, SQLUSMALLINT number) {
    std::array<SQLCHAR, 256> name{};
    SQLSMALLINT length = 0;
    SQLSMALLINT type = 0;
    SQLSMALLINT decimals = 0;
    SQLSMALLINT nullable = 0;
    SQLULEN size = 0;
    statement.Check(SQLDescribeCol(statement.Get(), number, name.data(),
                                   static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &decimals,
                                   &nullable));
    const bool declared = size > 0 && size < kCellBytes / kBytesPerCharacter;
    return {reinterpret_cast<const char*>(name.data()),
            declared ? (size + 1) * kBytesPerCharacter : kCellBytes};
}

Result OdbcEngine::Query(const std::string& text) {
    Result result;
    std::vector<std::size_t> widths;
    while (true) {
        const Statement statement(connection_.Get());
        SQLSMALLINT columns = 0;
        if (!Send(statement, text)) return result;
        statement.Check(SQLNumResultCols(statement.Get(), &columns));
        if (columns == 0) return result;
        for (SQLSMALLINT i = static_cast<SQLSMALLINT>(widths.size()); i < columns; ++i) {
            auto [name, width] = Describe(statement, static_cast<SQLUSMALLINT>(i + 1));
            result.columns.push_back(std::move(name));
            widths.push_back(width);
        }
        result.rows = RowArena(widths.size());
        if (BlockFetch(statement, widths).Run(result.rows)) return result;
    }
}

std::vector<std::string> OdbcEngine::KeyColumns(const std::string& table) {
    constexpr SQLUSMALLINT kColumnName = 4;
    const std::string name = Kind() == Server::Postgres ? LowerCase(table) : table;
    const Statement statement(connection_.Get());
    statement.Check(SQLPrimaryKeys(statement.Get(), nullptr, 0, nullptr, 0, Characters(name), SQL_NTS));
    std::array<char, 512> column{};
    SQLLEN length = 0;
    statement.Check(
        SQLBindCol(statement.Get(), kColumnName, SQL_C_CHAR, column.data(), column.size(), &length));
    std::vector<std::string> columns;
    while (Succeeded(SQLFetch(statement.Get()))) columns.emplace_back(column.data());
    return columns;
}

}  // namespace

std::unique_ptr<Engine> OpenOdbc(const ConnectionParts& parts) {
    return std::make_unique<OdbcEngine>(parts);
}

}  // namespace tallix::ado

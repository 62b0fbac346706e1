// The assessment store: SQLite files read and written by table and column name. Rows come in stored order, an
// empty cell reads as empty text, typed dates are kept as ISO-8601 text. A file from a stranger is data only:
// no triggers, no views, no extensions, no trusted schema, and no value above the size limit.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dates.h"
#include "core/file_error.h"

namespace kel {

class earlier_copies;
class recordset;
class save_transaction;
struct file_stamp;

/// One open file. Copies share the connection; a file attached to another one shares its connection and
/// therefore its transaction. Every operation throws file_error.
class database {
  public:
    /// Opens an existing file for reading and writing.
    explicit database(const std::string& path) : database(path, path) {}
    /// The same for a file that is to stand at `named` once it is finished: that is its path, also in
    /// failures.
    database(const std::string& path, const std::string& named);
    /// Opens an existing file only to be read: nothing is written to it, not even what an unfinished save
    /// asks for, and every table is read as it stood at the first. A file that such a save left behind, or
    /// that is in write-ahead mode, throws file_error.
    static database for_reading(const std::string& path);

    const std::string& path() const;
    /// Opens a second file within this one's transactions.
    database attach(const std::string& path) const;

    /// Select * from [table], only these columns of it, or only its rows whose `column` equals `value`.
    recordset open(std::string_view table) const;
    recordset open(std::string_view table, const std::vector<std::string_view>& columns) const;
    recordset open(std::string_view table, std::string_view column, std::string_view value) const;
    /// Select [column] from [table] where [key_column] = value, first row; nothing if there is none.
    std::optional<std::string> lookup(std::string_view column, std::string_view table,
                                      std::string_view key_column, std::string_view value) const;

    /// A number that tells the rows of a table, in stored order and with these columns (none named: all),
    /// from others; it continues `from`. As quick as SQLite reads them, and at once for a table that the save
    /// under way has written anew.
    std::uint64_t digest(std::string_view table, const std::vector<std::string_view>& columns,
                         std::uint64_t from) const;

    void delete_rows(std::string_view table) const;
    void delete_rows(std::string_view table, std::string_view column, std::string_view value) const;

    /// Of the file as it lies there now, read without giving up a lock on it. Never throws.
    file_stamp stamp() const;

    /// Whether anything was written through this connection since it was opened.
    bool has_written() const;

    struct assignment {
        std::string_view column;
        std::string_view text;
    };
    /// Writes the columns in every row whose `key_column` equals `key`; returns how many rows there were.
    int update_rows(std::string_view table, const std::vector<assignment>& values,
                    std::string_view key_column, std::string_view key) const;

  private:
    friend class recordset;
    friend class save_transaction;
    struct connection;
    database(std::shared_ptr<connection> shared, std::string schema, std::string path);
    std::string quoted(std::string_view table) const;
    std::vector<std::uint64_t> column_digests_of(std::string_view table,
                                                 const std::vector<std::string_view>& columns) const;

    std::shared_ptr<connection> shared_;
    std::string schema_;
    std::string path_;
};

/// Rows of one table, walked forward. add_new or edit starts a row, set fills it, update commits it; a column
/// that is not set stays empty (add_new) or as it was (edit).
class recordset {
  public:
    recordset(recordset&&) noexcept;
    recordset& operator=(recordset&&) noexcept;
    ~recordset();

    bool eof() const;
    void move_next();
    int record_count() const;

    int column_count() const;
    int column(std::string_view name) const;  // throws file_error for a column the table lacks
    std::string text(std::string_view name) const { return text(column(name)); }
    std::string text(int column) const { return std::string(view(column)); }
    /// As text, without a copy: it ends with the next move.
    std::string_view view(int column) const;
    /// Empty for an empty cell; file_error for a text that is no date.
    std::optional<date> date_value(std::string_view name) const;

    void add_new();
    void edit();
    void set(std::string_view name, std::string_view text) { set(column(name), text); }
    void set(int column, std::string_view text);
    /// As set, without a copy: the text must stay as it is as long as the recordset is written to.
    void set_kept(int column, const std::string& text);
    void set_kept(int column, std::string&& text) = delete;
    void set(std::string_view name, date d);
    void set(std::string_view name, double number);
    void update();
    void remove();

  private:
    friend class database;
    struct rows;
    explicit recordset(std::unique_ptr<rows> r);
    std::unique_ptr<rows> rows_;
};

/// One save. What was written is undone unless commit was reached, also by a crash or a kill.
class save_transaction {
  public:
    /// Of a file that a person works on: the first one of a day leaves an earlier copy of each file of the
    /// transaction. One that is still being made has none.
    save_transaction(const database& db, earlier_copies& copies);
    /// Of a file that nobody has worked on yet, or to hold its lock.
    explicit save_transaction(const database& db);
    ~save_transaction();
    save_transaction(const save_transaction&) = delete;
    save_transaction& operator=(const save_transaction&) = delete;
    void commit();

  private:
    database db_;
    bool open_ = true;
};

}  // namespace kel

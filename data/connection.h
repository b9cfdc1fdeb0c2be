#pragma once

#include <QString>
#include <memory>
#include <vector>

namespace data {

struct OpenFile;

/// The one open database file of the run.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens an existing file for reading and writing, or for reading where no more is allowed; never makes one. Throws
    /// RuntimeError -2147467259 with the provider's words: NoDatabase for a missing, empty, truncated or foreign file,
    /// the plain error for a locked or unreadable one; 3705 when open already.
    void open(const QString& path);
    /// Closes every recordset opened here, dropping their pending changes, then the file.
    void close();
    [[nodiscard]] bool isOpen() const;
    /// The open file, or the folder in which a save keeps its journal, may not be written.
    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] QString path() const;

    /// Names of the file's tables and views, system tables left out of none, ordered by type, then name.
    [[nodiscard]] std::vector<QString> tableNames() const;

    /// Keeps the file as it stands for the reads of its lifetime, so that many of them need not ask for it one by one.
    /// Nothing may be written meanwhile. Inside another one, or on a closed connection, it does nothing.
    class ReadHold;

    [[nodiscard]] OpenFile& file() const { return *file_; }

private:
    std::unique_ptr<OpenFile> file_;
};

class Connection::ReadHold {
public:
    explicit ReadHold(Connection& connection);
    ~ReadHold();
    ReadHold(const ReadHold&) = delete;
    ReadHold& operator=(const ReadHold&) = delete;

private:
    OpenFile& file_;
    bool holds_;
};

}  // namespace data

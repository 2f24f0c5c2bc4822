#pragma once

#include <functional>
#include <string>
#include <unordered_map>

#include <QObject>

#include <tern7/core/structure/structure.h>

namespace tern7 {

/// Reads the lists of SQL editors without making the window wait: in another thread where the
/// database can be asked there, else only when a user asked for the list.
class TSQLListReader : public QObject {
    Q_OBJECT

public:
    enum class TState { Closed, Loading, Ready, Failed };

    /// `structure` gives the structure of the present moment, or none.
    TSQLListReader(std::function<TKCustomDBStructure*()> presentStructure, QObject* parent);
    ~TSQLListReader() override;

    TState StateOf(const TDSField& field) const;
    /// Why the list could not be read.
    QString ErrorOf(const TDSField& field) const;
    /// Begins to read a list that is closed, if that can be done in another thread.
    void Want(const TDSField& field) { Read(field, false); }
    /// Reads a list now, also one that failed or is open already.
    void Demand(const TDSField& field) { Read(field, true); }

signals:
    /// A list was read, or it failed.
    void finished(int fieldID);

private:
    struct TReading {
        std::string sql;
        const TKCustomDBStructure* structure = nullptr; // only compared
        uint64_t revision = 0;                          // of the structure
        bool loading = false;
        QString error;
    };
    struct TResult {
        int fieldID;
        std::string sql;
        const TKCustomDBStructure* structure;
        TStrings values, captions;
        QString error;
    };
    const TReading* ReadingOf(const TDSField& field) const;
    void Read(const TDSField& field, bool demanded);
    void Start(TReading& reading, const TDSField& field, bool demanded);
    void Finish(TResult result);

    std::function<TKCustomDBStructure*()> structure;
    std::unordered_map<int, TReading> readings; // by field ID
};

} // namespace tern7

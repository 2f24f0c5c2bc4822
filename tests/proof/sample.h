#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QtCore/QTemporaryDir>

#include "cells.h"
#include "formulas.h"

#include <tern7/core/structure/structure.h>

namespace tern7::proof {

/// A table as it lies in the database.
struct TTableRows {
    std::vector<std::string> columns;
    TRows rows;
    size_t ColumnOf(std::string_view name) const;
};

/// The sample database as an SQLite file, its rows read plainly, and structures of it: the first as
/// imported, the others with links of all kinds. All have a few operators and virtual fields more.
class TSample {
public:
    TSample();
    static TSample& Shared();

    const std::string& Address() const { return address; }
    const TTableRows& Rows(const std::string& tableName) const { return tables.at(tableName); }
    const std::vector<std::unique_ptr<TKCustomDBStructure>>& Structures() const {
        return structures;
    }
    TKCustomDBStructure& Imported() const { return *structures.front(); }
    const TVirtualFields& VirtualFields() const { return virtualFields; }

private:
    void MakeFile();
    void Import();
    void QuoteMixedCase();
    void ReadRows();
    void AddVirtualField(const char* name, std::string_view formula, TFieldType type,
                         std::initializer_list<const char*> columns);

    QTemporaryDir folder;
    std::string address;
    std::map<std::string, TTableRows> tables;
    std::vector<std::unique_ptr<TKCustomDBStructure>> structures;
    TVirtualFields virtualFields;
};

/// The folder with the sample's scripts.
std::string SampleFolder();
/// Runs a program to its end; std::runtime_error with what it said when it fails.
void RunProgram(const std::string& program, const std::vector<std::string>& arguments);

} // namespace tern7::proof

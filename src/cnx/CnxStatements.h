// The statement lines of a CNX body: dispatch on the first token, and what the statements build.
#pragma once

#include <string_view>

#include "cnx/CnxConnectionMap.h"
#include "cnx/CnxDescription.h"
#include "cnx/CnxOperands.h"

namespace plovix {

// How many lines of the statements that size the reader's tables a file holds.
struct CnxStatementCounts {
  size_t modules = 0, usedPorts = 0, connects = 0, symbols = 0;
};

// What the statements of one file build: the description (its names interned in its pool) and the
// connection map, which is put in order once the whole file is read.
struct CnxBuild {
  CnxDescription& description;
  CnxConnectionMapBuilder connections;

  // The names that key the connection map and the netlist (modules, instances, ports, targets) are
  // interned: each distinct name is stored once, and equal names are one pointer.
  Name intern(std::string_view text) { return description.names->intern(text); }
  // Everything else (the names and values of parameters, constants and privates, defaults, tags) is
  // stored as it comes, without the lookup.
  Name value(std::string_view text) { return description.names->add(text); }

  // Makes room for what a file of `counts` lines builds, so that no table is rebuilt while it is read.
  void reserve(const CnxStatementCounts& counts);
};

// Reads the statement whose first token has just been taken (it is the operands' current token) and stores
// its record; false, with one log entry (or none, where a statement says so), when the line is dropped.
bool readCnxStatement(CnxOperands& in, CnxBuild& out);

// USED_PORT: and CONNECT: lines (CnxReferences.cpp); SYMBOL: lines (SymbolSection.cpp).
bool readUsedPortStatement(CnxOperands& in, CnxBuild& out);
bool readConnectStatement(CnxOperands& in, CnxBuild& out);
bool readSymbolStatement(CnxOperands& in, CnxBuild& out);

}  // namespace plovix

// The statement lines of a CNX body: dispatch on the first token and the declaration statements.
#pragma once

#include "cnx/CnxConnectionMap.h"
#include "cnx/CnxOperands.h"

namespace plovix {

// Reads the statement whose first token has just been taken (it is the operands' current token) and stores
// its record; false, with one log entry (or none, where a statement says so), when the line is dropped.
bool readCnxStatement(CnxOperands& in, CnxEndFiler& filer);

// USED_PORT: and CONNECT: lines (CnxReferences.cpp); SYMBOL: lines (SymbolSection.cpp).
bool readUsedPortStatement(CnxOperands& in);
bool readConnectStatement(CnxOperands& in, CnxEndFiler& filer);
bool readSymbolStatement(CnxOperands& in);

}  // namespace plovix

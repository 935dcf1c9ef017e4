// The declaration statements of a CNX body (LIBRARY:, MODULE:, PARAMETER:, CONSTANT:, PRIVATE:) and the
// dispatch of every statement line.
#include "cnx/CnxStatements.h"

#include "base/Messages.h"

namespace plovix {

namespace {

constexpr const char* kNoDefaultLibrary = "NO_DEFAULT_LIB";

bool readLibrary(CnxOperands& in) {
  CnxLibrary library;
  if (!in.identifier(library.name)) return false;
  const bool useOptional = library.name == kNoDefaultLibrary;
  if (!(useOptional ? in.optionalIdentifier(library.use) : in.identifier(library.use))) return false;
  if (!in.endOfLine()) return false;
  in.description().libraries.push_back(std::move(library));
  return true;
}

bool readModule(CnxOperands& in) {
  CnxModule module;
  if (!in.identifier(module.moduleName)) return false;
  in.word(module.givenInstanceName);
  if (!in.endOfLine()) return false;
  CnxDescription& d = in.description();
  if (d.mainModuleName.empty()) d.mainModuleName = module.moduleName;
  module.instanceName = module.givenInstanceName.empty() ? d.mainModuleName : module.givenInstanceName;
  d.modules.push_back(std::move(module));
  return true;
}

// PARAMETER: and CONSTANT: lines share their grammar: name, type, optional value, optional target.
template <class Record>
bool readNamedValue(CnxOperands& in, std::vector<Record>& list) {
  Record record;
  if (!in.identifier(record.name) || !in.type(record.type)) return false;
  in.word(record.value);
  if (!in.optionalIdentifier(record.target) || !in.endOfLine()) return false;
  list.push_back(std::move(record));
  return true;
}

bool readPrivate(CnxOperands& in) {
  CnxPrivate record;
  if (!in.identifier(record.name) || !in.type(record.type)) return false;
  in.word(record.value);
  if (!in.endOfLine()) return false;
  in.description().privates.push_back(std::move(record));
  return true;
}

}  // namespace

bool readCnxStatement(CnxOperands& in, CnxEndFiler& filer) {
  const std::string keyword = in.token();
  CnxDescription& d = in.description();
  if (keyword == "LIBRARY:") return readLibrary(in);
  if (keyword == "MODULE:") return readModule(in);
  if (keyword == "PARAMETER:") return readNamedValue(in, d.parameters);
  if (keyword == "CONSTANT:") return readNamedValue(in, d.constants);
  if (keyword == "PRIVATE:") return readPrivate(in);
  if (keyword == "USED_PORT:") return readUsedPortStatement(in);
  if (keyword == "CONNECT:") return readConnectStatement(in, filer);
  if (keyword == "SYMBOL:") return readSymbolStatement(in);
  return in.fail(Msg::kCnxUnknownStatement);
}

}  // namespace plovix

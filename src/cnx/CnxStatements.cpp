// The declaration statements of a CNX body (LIBRARY:, MODULE:, PARAMETER:, CONSTANT:, PRIVATE:) and the
// dispatch of every statement line.
#include "cnx/CnxStatements.h"
#include "base/Messages.h"

namespace plovix {

namespace {

bool readLibrary(CnxOperands& in, CnxBuild& out) {
  std::string_view name, use;
  if (!in.identifier(name)) return false;
  const bool useOptional = name == kNoDefaultLibrary;
  if (!(useOptional ? in.optionalIdentifier(use) : in.identifier(use))) return false;
  if (!in.endOfLine()) return false;
  out.description.libraries.push_back({out.intern(name), out.intern(use)});
  return true;
}

bool readModule(CnxOperands& in, CnxBuild& out) {
  std::string_view moduleName;
  if (!in.identifier(moduleName)) return false;
  const std::string_view givenInstanceName = in.word();
  CnxModule module{out.intern(moduleName), {}, out.intern(givenInstanceName), in.lineNumber()};
  if (!in.endOfLine()) return false;
  CnxDescription& d = out.description;
  if (d.mainModuleName.empty()) d.mainModuleName = module.moduleName;
  module.instanceName = module.givenInstanceName.empty() ? d.mainModuleName : module.givenInstanceName;
  d.modules.push_back(module);
  return true;
}

// PARAMETER: and CONSTANT: lines share their grammar: name, type, optional value, optional target.
bool readNamedValue(CnxOperands& in, CnxBuild& out, std::vector<CnxParameter>& list) {
  std::string_view name, target;
  CnxParameter record;
  if (!in.identifier(name) || !in.type(record.type)) return false;
  record.name = out.value(name);
  record.value = out.value(in.word());
  if (!in.optionalIdentifier(target) || !in.endOfLine()) return false;
  record.target = out.intern(target);
  record.line = in.lineNumber();
  list.push_back(record);
  return true;
}

bool readPrivate(CnxOperands& in, CnxBuild& out) {
  std::string_view name;
  CnxPrivate record;
  if (!in.identifier(name) || !in.type(record.type)) return false;
  record.name = out.value(name);
  record.value = out.value(in.word());
  if (!in.endOfLine()) return false;
  out.description.privates.push_back(record);
  return true;
}

}  // namespace

void CnxBuild::reserve(const CnxStatementCounts& counts) {
  CnxDescription& d = description;
  d.modules.reserve(counts.modules);
  d.symbolElements.reserve(counts.symbols);
  // About one new name a line: a module's instance, a port, a sub-module's port.
  d.names->reserve(counts.modules + counts.usedPorts + counts.connects);
  connections.reserve(counts.connects, counts.modules);
}

bool readCnxStatement(CnxOperands& in, CnxBuild& out) {
  const std::string_view keyword = in.token();
  CnxDescription& d = out.description;
  if (keyword == "LIBRARY:") return readLibrary(in, out);
  if (keyword == "MODULE:") return readModule(in, out);
  if (keyword == "PARAMETER:") return readNamedValue(in, out, d.parameters);
  if (keyword == "CONSTANT:") return readNamedValue(in, out, d.constants);
  if (keyword == "PRIVATE:") return readPrivate(in, out);
  if (keyword == "USED_PORT:") return readUsedPortStatement(in, out);
  if (keyword == "CONNECT:") return readConnectStatement(in, out);
  if (keyword == "SYMBOL:") return readSymbolStatement(in, out);
  return in.fail(Msg::kCnxUnknownStatement);
}

}  // namespace plovix

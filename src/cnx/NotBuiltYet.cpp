// Temporary: the CNX reader is being written; until then a description cannot be read.
#include "base/Report.h"
#include "cnx/CnxDescription.h"

namespace plovix {

CnxDescription::CnxDescription() { reset(); }
CnxDescription::CnxDescription(const std::string& path) {
  reset();
  setCnxPath(path);
}
void CnxDescription::reset() {}
void CnxDescription::setCnxPath(const std::string& path) { cnxPath = path; }
void CnxDescription::deleteWorkFiles() {}
bool CnxDescription::readDescription(UserInterface& ui) {
  ui.report("Reading CNX descriptions is not built yet.");
  return false;
}
bool CnxDescription::writeRetrievalInfo(UserInterface&, const std::string&, std::string&) { return false; }
bool CnxDescription::extractRetrievalInfo(UserInterface& ui, const std::string&) {
  ui.report("Rebuilding a CNX description from a variation file is not built yet.");
  return false;
}
bool CnxDescription::stripGenerationLine(UserInterface&, const std::string&) { return true; }
bool CnxDescription::logError(UserInterface&, const std::string&) { return false; }
void CnxDescription::addConnectionEnd(const std::string&, const std::string&, CnxConnectionEnd) {}

}  // namespace plovix

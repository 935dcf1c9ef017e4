// The description's life: construction, reset, the paths of the CNX file and its log, and their deletion.
#include "cnx/CnxDescription.h"

#include "base/FileSystem.h"
#include "base/PathText.h"

namespace plovix {

CnxDescription::CnxDescription() {
  reset();
}

CnxDescription::CnxDescription(const std::string& path) {
  reset();
  setCnxPath(path);
}

void CnxDescription::reset() {
  defaultSymbolBox = true;
  errorLogFresh = true;
  uses2D = false;
  version = kVersionUnknown;
  mainModuleName.clear();
  generationMode = "STANDARD";
  token.clear();
  lineRest.clear();
  lineCounter = 1;
  emptyQuoted = false;
}

void CnxDescription::setCnxPath(const std::string& path) {
  if (path.empty()) {
    cnxPath.clear();
    errorLogPath.clear();
    return;
  }
  cnxPath = path;
  errorLogPath = pathWithoutExtension(path) + ".cnxerr";
}

void CnxDescription::deleteWorkFiles() {
  if (cnxPath.empty()) return;
  if (fileExists(cnxPath)) deleteFile(cnxPath);
  if (fileExists(errorLogPath)) deleteFile(errorLogPath);
}

}  // namespace plovix

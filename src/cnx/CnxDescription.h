// The CNX description of a variation: its records, the connection map, the reading state, and the paths of
// the CNX file and its error log.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "cnx/BucketMap.h"
#include "cnx/SymbolElements.h"

namespace plovix {

struct CnxLibrary {
  std::string name;  // "NO_DEFAULT_LIB" is special
  std::string use;
};

struct CnxModule {
  std::string moduleName;
  std::string instanceName;  // givenInstanceName when not empty, else mainModuleName when the line was read
  std::string givenInstanceName;
};

struct CnxParameter {
  std::string name, type, value, target;
};

struct CnxConstant {
  std::string name, type, value, target;
};

struct CnxPrivate {
  std::string name, type, value;
};

struct CnxUsedPort {
  std::string name;
  std::string width1 = "0", low1 = "0", width2 = "0", low2 = "0";
  std::string direction;     // "INPUT", "OUTPUT" or "BIDIR"
  std::string defaultValue;  // "NODEFVAL" means none
  std::string tag;
};

struct CnxConnectionEnd {
  std::string peerInstance, peerPort;
  std::string peerWidth1 = "0", peerLow1 = "0", peerWidth2 = "0", peerLow2 = "0";
  std::string ownWidth1 = "0", ownLow1 = "0", ownWidth2 = "0", ownLow2 = "0";
  bool peerIsSource = false;
  bool peerInverted = false;
  bool peerIsConstant = false;
};

// Ends filed under one port, in the order the writers join them (descending bit position).
using CnxEndList = std::vector<CnxConnectionEnd>;
// Port name to its ends.
using CnxPortMap = BucketMap<CnxEndList>;
// Instance name to its ports.
using CnxConnectionMap = BucketMap<CnxPortMap>;

inline constexpr const char* kVersionUnknown = "CNX_VERSION_UNKNOWN";

class CnxDescription {
 public:
  CnxDescription();
  explicit CnxDescription(const std::string& cnxPath);

  void reset();
  void setCnxPath(const std::string& path);
  void deleteWorkFiles();

  // Reads cnxPath into the description, logging faults to the error log; reports error 33 on failure.
  bool readDescription(UserInterface& ui);

  // Appends the retrieval-info block for a design file of `outputExtension` to `out`.
  bool writeRetrievalInfo(UserInterface& ui, const std::string& outputExtension, std::string& out);

  // Edit mode: rebuilds the CNX file beside a variation file from its header and retrieval info.
  bool extractRetrievalInfo(UserInterface& ui, const std::string& variationPath);

  // Edit mode: removes a valid generation line from the start of a CNX file.
  bool stripGenerationLine(UserInterface& ui, const std::string& cnxFilePath);

  // Writes one entry (or, the first time, the banner) to the error log; always false.
  bool logError(UserInterface& ui, const std::string& message);

  // Files one end of a connection under (instance, port).
  void addConnectionEnd(const std::string& instance, const std::string& port, CnxConnectionEnd end);

  bool defaultSymbolBox = true;
  bool errorLogFresh = true;
  bool uses2D = false;
  std::string cnxPath;
  std::string errorLogPath;
  std::string version = kVersionUnknown;
  std::string commentLeader;
  std::string mainModuleName;
  std::string generationMode = "STANDARD";
  std::string token;
  std::string lineRest;
  int32_t lineCounter = 1;
  bool emptyQuoted = false;
  std::vector<CnxLibrary> libraries;
  std::vector<CnxModule> modules;
  std::vector<CnxParameter> parameters;
  std::vector<CnxConstant> constants;
  std::vector<CnxPrivate> privates;
  std::vector<CnxUsedPort> inputPorts;
  std::vector<CnxUsedPort> outputPorts;
  std::vector<CnxUsedPort> mainModulePorts;
  CnxConnectionMap connectionMap;
  std::vector<std::string> moduleNames;
  std::vector<SymbolElement> symbolElements;
};

}  // namespace plovix

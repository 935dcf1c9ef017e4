// The writer family: what every language writer holds, the files it writes and the texts it builds.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/RunOutcome.h"
#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"
#include "hdl/NetlistRecords.h"
#include "hdl/NetlistWireIndex.h"

namespace plovix {

class HdlFileWriter {
 public:
  // `basePath` is the output directory followed by the variation's base name, without extension.
  HdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                CnxDescription& description);
  virtual ~HdlFileWriter() = default;
  HdlFileWriter(const HdlFileWriter&) = delete;
  HdlFileWriter& operator=(const HdlFileWriter&) = delete;

  // basePath + designExtension: the design text followed by the retrieval info.
  virtual bool writeDesignFile();
  // basePath + companionExtension: the companion text.
  virtual bool writeCompanionFile();
  // The symbol, through the symbol builder: whether the drawing library wrote it.
  virtual bool writeSymbolFile();
  // basePath + "_inst" + designExtension: the instantiation template.
  virtual bool writeInstanceFile();
  // The design text without the retrieval info.
  virtual std::string designText();
  // The generated-file header.
  virtual std::string headerText();
  virtual std::string buildDesignText() = 0;
  virtual std::string buildCompanionText() = 0;
  virtual std::string buildInstanceText() = 0;

  const std::string& basePath() const { return basePath_; }
  const std::string& fileName() const { return fileName_; }
  const std::string& signatureName() const { return signatureName_; }
  const std::string& commentLeader() const { return commentLeader_; }
  const std::string& designExtension() const { return designExtension_; }
  const std::string& companionExtension() const { return companionExtension_; }
  std::string companionPath() const { return basePath_ + companionExtension_; }
  std::string symbolPath() const { return basePath_ + ".sym"; }
  std::string instancePath() const { return basePath_ + "_inst" + designExtension_; }

  // From now on every file this writer writes, or fails to write, is recorded in `outcome`.
  void recordWritesIn(RunOutcome& outcome) { outcome_ = &outcome; }

  // The connection netlist (VHDL and Verilog texts): fills wires and connections from the description.
  void buildNetlist();
  // Fills subModulePorts with the merged ports of the instantiated modules.
  void buildSubModulePorts();
  // The first wire whose sourceKey equals `key`, or null.
  NetlistWire* findWire(const std::string& key);
  // Appends a wire with a fresh "sub_wire%d" name and gives the name; nothing and "" for an empty source
  // text.
  std::string newWire(const std::string& sourceText, const std::string& key, const std::string& drivingPort,
                      const std::string& width1, const std::string& width2, bool inverted, bool constant);
  // The wire that carries a connection's driving end, found or created.
  std::string wireFor(const NetlistConnection& connection);
  // The same for one bit driving a bus: the new wire takes the driven end's widths.
  std::string wireForBitToBus(const NetlistConnection& connection);
  // Widens a wire driven by a main-module port to that port's widths; whether such a port was found.
  bool fixMainModuleWire(NetlistWire& wire);

  // Netlist state, filled by the netlist builder for the VHDL and Verilog texts.
  int32_t netlistFlag = 0;
  std::vector<NetlistWire> wires;
  std::vector<NetlistConnection> connections;
  std::vector<SubModulePort> subModulePorts;
  int32_t wireCounter = 0;

 protected:
  // Writes `text` to `path` and reports a failure through the file-error messages.
  bool writeFile(const std::string& path, const std::string& text);
  // The 20-line legal notice block in this writer's comment style.
  std::string legalNoticeText() const;

  UserInterface& ui_;
  std::string basePath_;
  std::string signatureName_;
  std::string fileName_;
  std::string commentLeader_;
  std::string designExtension_;
  std::string companionExtension_;
  std::string version_;
  CnxDescription& description_;
  // Finds wires by source key for findWire without scanning the list.
  NetlistWireIndex wireIndex_;
  RunOutcome* outcome_ = nullptr;
};

}  // namespace plovix

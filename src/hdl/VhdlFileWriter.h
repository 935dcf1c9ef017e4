// The VHDL writer: design text (entity and structural architecture), component declaration and template.
#pragma once

#include <memory>
#include <string>

#include "hdl/HdlFileWriter.h"
#include "hdl/HdlTextMode.h"
#include "hdl/Netlist.h"
#include "hdl/VhdlNetlist.h"

namespace plovix {

class VhdlFileWriter : public HdlFileWriter {
 public:
  // The writer reads `netlist` (built from `description` for `signatureName`), which must outlive it.
  // `mode` chooses the standard text or the valid forms of the known constructs (docs/hdl-text.md).
  VhdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                 const CnxDescription& description, const Netlist& netlist,
                 HdlTextMode mode = HdlTextMode::kStandard);

  // Header, legal notice, library clauses, entity and the architecture SYN.
  std::string buildDesignText() const override;
  // The component declaration file: legal notice and the variation as a component.
  std::string buildCompanionText() const override;
  // An instance of the variation that maps every port to a signal named port + "_sig".
  std::string buildInstanceText() const override;

  // The sections of the design text. The architecture's sections read the netlist as its signals are
  // declared (declareVhdlSignals).
  std::string libraryClausesText() const;
  std::string entityText() const;
  // The entity's port lines, joined by ";\n"; the component declaration file repeats them.
  std::string portListText() const;
  std::string signalDeclarationsText(const VhdlNetlist& signals) const;
  // The type declaration and the procedure that unpack a flat vector into a two-dimensional signal, sized
  // by the last two-dimensional wire.
  std::string twoDimensionalProcedureText() const;
  std::string componentDeclarationsText() const;
  // The declaration of one module's component with the generics of `genericsInstance` (all of them, or
  // only the declaration of `onlyModule` where that is not empty).
  std::string componentDeclarationsText(Name onlyModule, Name genericsInstance) const;
  // The four sections of concurrent assignments.
  std::string concurrentAssignmentsText(const VhdlNetlist& signals) const;
  std::string instancesText(const VhdlNetlist& signals) const;

 private:
  // The large sections append themselves to the design text as it is built.
  void appendPortList(std::string& text) const;
  void appendSignalDeclarations(std::string& text, const VhdlNetlist& signals) const;
  void appendConcurrentAssignments(std::string& text, const VhdlNetlist& signals) const;
  void appendInstances(std::string& text, const VhdlNetlist& signals) const;
  // Another instance of the module comes first and maps other generics than this one.
  bool genericsDiffer(const CnxModule& module) const;

  HdlTextMode mode_;
  // The valid text's rewired netlist (validWiring), where it differs from the one given.
  std::unique_ptr<Netlist> validNetlist_;
  const Netlist& netlist_;
};

}  // namespace plovix

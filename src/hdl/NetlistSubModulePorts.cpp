// The merged ports of the instantiated sub-modules, with the direction each is used in.
#include <string>

#include "base/TextHelpers.h"
#include "cnx/FlatMap.h"
#include "cnx/NameSet.h"
#include "hdl/NetlistBuilder.h"

namespace plovix {

namespace {

struct ModulePortKey {
  Name module, port;
  friend bool operator==(const ModulePortKey&, const ModulePortKey&) = default;
};
struct ModulePortKeyHash {
  size_t operator()(const ModulePortKey& key) const { return key.module.hash() * 31 + key.port.hash(); }
};

// A stored bound changes only for a strictly larger width or a strictly smaller low index, and then becomes
// the plain number; otherwise its text stays as written, so a symbolic bound survives a tie.
void growTo(Bound& width, long long value, TextPool& texts) {
  if (value > width.value()) width = Bound::ofNumber(value, texts);
}

void shrinkTo(Bound& low, long long value, TextPool& texts) {
  if (value < low.value()) low = Bound::ofNumber(value, texts);
}

// A driven end turns an output into a bidirectional port, a driving end an input.
void mergeEnd(SubModulePort& record, const CnxConnectionEnd& e, TextPool& texts) {
  const SubModuleDirection other = e.peerIsSource ? SubModuleDirection::kOut : SubModuleDirection::kIn;
  if (record.direction == other) {
    record.direction = SubModuleDirection::kInOut;
  } else if (record.direction != SubModuleDirection::kInOut) {
    record.direction = e.peerIsSource ? SubModuleDirection::kIn : SubModuleDirection::kOut;
  }
  growTo(record.shape.rows.width, e.own.rows.width.value() + e.own.rows.low.value(), texts);
  shrinkTo(record.shape.rows.low, e.own.rows.low.value(), texts);
  growTo(record.shape.bits.width, e.own.bits.width.value(), texts);
  shrinkTo(record.shape.bits.low, e.own.bits.low.value(), texts);
}

bool allZero(const Shape& shape) {
  return shape.rows.width.isZero() && shape.rows.low.isZero() && shape.bits.width.isZero() &&
         shape.bits.low.isZero();
}

}  // namespace

// Every module's instance ports, merged by (module, port); the main module's "@" ports give the bounds of
// its own ports in the end.
void NetlistBuilder::buildSubModulePorts() {
  TextPool& texts = *texts_;
  NameSet bidirOutputs;
  for (const CnxUsedPort& port : description_.outputPorts) {
    if (port.direction == PortDirection::kBidir) bidirOutputs.insert(port.name);
  }
  std::vector<SubModulePort>& records = parts_.subModulePorts;
  FlatMap<ModulePortKey, size_t, ModulePortKeyHash> recordOf;
  const CnxConnectionMap& map = description_.connectionMap;
  for (const CnxModule& module : description_.modules) {
    const CnxConnectionMap::Instance* instance = map.findInstance(module.instanceName);
    if (instance == nullptr) continue;
    for (const CnxConnectionMap::Port& port : map.portsOf(*instance)) {
      const auto [index, added] =
          recordOf.tryEmplace(ModulePortKey{module.moduleName, port.name}, records.size());
      const size_t record = *index;
      for (const CnxConnectionEnd& e : map.endsOf(port)) {
        if (!added || &e != &map.endsOf(port).front()) {
          mergeEnd(records[record], e, texts);
          continue;
        }
        SubModulePort made;
        made.moduleName = module.moduleName;
        made.portName = port.name;
        made.shape = e.own;
        made.shape.rows.width = Bound::ofNumber(e.own.rows.width.value() + e.own.rows.low.value(), texts);
        made.scalar = allZero(e.own);
        made.direction = e.peerIsSource ? SubModuleDirection::kIn : SubModuleDirection::kOut;
        if (e.peerInstance.empty() && bidirOutputs.contains(e.peerPort.view()))
          made.direction = SubModuleDirection::kInOut;
        records.push_back(made);
      }
    }
  }
  // The first record of the modulon's own module for every port name.
  const std::string signature = toLowerText(signatureName_);
  FlatMap<Name, size_t, NameHash> ownPortRecord;
  for (size_t i = 0; i < records.size(); ++i) {
    if (toLowerText(records[i].moduleName.view()) == signature)
      ownPortRecord.tryEmplace(records[i].portName, i);
  }
  for (const CnxUsedPort& mainPort : description_.mainModulePorts) {
    if (const size_t* record = ownPortRecord.find(mainPort.name)) records[*record].shape = mainPort.shape;
  }
}

}  // namespace plovix

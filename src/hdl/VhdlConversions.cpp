// The VHDL conversion records: one signal for each sub-module port that several connections feed.
#include <string>
#include <unordered_map>
#include <vector>

#include "base/Format.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

namespace {

// The connections that feed one port of an instance, consecutive in the connection list.
struct ConversionGroup {
  std::string port;
  int members = 0;
  long long width1 = 0, width2 = 0;
  std::string joined;
};

}  // namespace

void VhdlFileWriter::buildConversions() {
  std::unordered_map<std::string, std::vector<size_t>> byInstance;
  for (size_t i = 0; i < connections.size(); ++i) byInstance[connections[i].ownInstance].push_back(i);

  for (const CnxModule& module : description_.modules) {
    const std::string& instance = module.instanceName;
    ConversionGroup group;
    auto close = [&] {
      if (group.members >= 2) {
        VhdlConversion conversion;
        conversion.sourceText = group.joined;
        conversion.name = formatText("sub_wire%d", wireCounter++);
        conversion.sourceKey = instance + "." + group.port;
        conversion.drivingPort = group.port;
        conversion.width1 = formatInt(group.width1);
        conversion.width2 = formatInt(group.width2);
        conversions.push_back(std::move(conversion));
      }
      group = ConversionGroup{};
    };
    const auto taken = byInstance.find(instance);
    if (taken == byInstance.end()) continue;
    for (size_t i : taken->second) {
      const NetlistConnection& connection = connections[i];
      if (group.members > 0 && connection.ownPort != group.port) close();
      if (group.members == 0) group.port = connection.ownPort;
      group.width1 += vhdlIntegerOf(connection.ownWidth1);
      group.width2 += vhdlIntegerOf(connection.ownWidth2);
      if (group.members > 0) group.joined += " & ";
      group.joined += connection.peerName + vhdlRangeText(connection.peerWidth1, connection.peerLow1,
                                                          connection.peerWidth2, connection.peerLow2);
      ++group.members;
    }
    close();
  }
}

}  // namespace plovix

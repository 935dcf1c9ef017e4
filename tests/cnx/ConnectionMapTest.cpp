// CONNECT lines: the two ends each line files, constant drivers, and the order in which the map and each
// port's list give them back (samples with golden maps, and filing orders as a property).
#include <algorithm>
#include <filesystem>
#include <span>

#include "CnxFixture.h"
#include "Golden.h"

namespace plovix::testing {
namespace {

using ConnectionMapTest = CnxFixture;

std::string join(const Shape& shape) {
  std::string out;
  for (const std::string& text : textsOf(shape)) out += (out.empty() ? "" : " ") + text;
  return out;
}

std::vector<std::string> mapSamples() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(PLOVIX_TEST_DATA_DIR "/maps")) {
    if (entry.path().extension() == ".cnx") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class ConnectionMapSample : public CnxFixture, public ::testing::WithParamInterface<std::string> {};

// The map of each sample (data/maps/*.cnx, each saying its rule), every end in walking order with what it
// records, compared with its golden file; each instance is found again by its name and each end by its
// instance and port.
TEST_P(ConnectionMapSample, FilesEveryEndInWalkingOrder) {
  const std::string file = std::string(PLOVIX_TEST_DATA_DIR) + "/maps/" + GetParam();
  ASSERT_TRUE(read(TempDir::readFile(file + ".cnx")));
  const CnxConnectionMap& map = description.connectionMap;
  std::string text;
  map.forEachEnd([&](Name instance, Name port, const CnxConnectionEnd& end) {
    text += instance.str() + "@" + port.str() + " (" + join(end.own) + ") " +
            (end.peerIsSource ? "<- " : "-> ") + (end.peerInverted ? "!" : "") + end.peerInstance.str() +
            "@" + end.peerPort.str() + " (" + join(end.peer) + ")" + (end.peerIsConstant ? " constant" : "") +
            "\n";
    EXPECT_FALSE(map.find(instance.view(), port.view()).empty()) << instance.str() << "@" << port.str();
  });
  for (const CnxConnectionMap::Instance& instance : map.instances())
    EXPECT_EQ(map.findInstance(instance.name), &instance);
  expectGolden(text, file + ".map");
}

INSTANTIATE_TEST_SUITE_P(Samples, ConnectionMapSample, ::testing::ValuesIn(mapSamples()),
                         [](const auto& info) { return info.param; });

// Ends filed in any order, from the highest bit down, and from the lowest bit up.
TEST_F(ConnectionMapTest, EndsOfOnePortAreOrderedWhateverTheFilingOrder) {
  struct Case {
    std::vector<int> lows;
    std::vector<std::string> peers;  // in list order
  };
  const Case cases[] = {
      {{3, 0, 7, 3, 5, 5, 1, 9, 0, 3, 8, 2, 7},
       {"p7", "p10", "p2", "p12", "p4", "p5", "p0", "p3", "p9", "p11", "p6", "p1", "p8"}},
      {{3, 2, 1, 0}, {"p0", "p1", "p2", "p3"}},
      {{0, 1, 2, 3}, {"p3", "p2", "p1", "p0"}},
  };
  for (const Case& c : cases) {
    std::string text = kCnxHead + "MODULE: m\n";
    for (size_t i = 0; i < c.lows.size(); ++i)
      text += "CONNECT: q 1 " + std::to_string(c.lows[i]) + " 0 0 p" + std::to_string(i) + " 1 0 0 0\n";
    ASSERT_TRUE(read(text));
    std::vector<std::string> peers;
    for (const CnxConnectionEnd& end : description.connectionMap.find("", "q"))
      peers.push_back(end.peerPort.str());
    EXPECT_EQ(peers, c.peers);
  }
}

}  // namespace
}  // namespace plovix::testing

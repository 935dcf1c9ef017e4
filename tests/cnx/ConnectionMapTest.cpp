// CONNECT lines: the two ends each line files, constant drivers, and the order in which the map and each
// port's list give them back.
#include <algorithm>

#include "CnxFixture.h"

namespace plovix::testing {
namespace {

using ConnectionMapTest = CnxFixture;

const CnxEndList& endsOf(const CnxDescription& d, const std::string& instance, const std::string& port) {
  static const CnxEndList kNone;
  const CnxPortMap* ports = d.connectionMap.find(instance);
  const CnxEndList* ends = ports == nullptr ? nullptr : ports->find(port);
  return ends == nullptr ? kNone : *ends;
}

TEST_F(ConnectionMapTest, EachLineFilesAnEndUnderBothReferences) {
  ASSERT_TRUE(read(kCnxHead + "CONNECT: @early 1 0 0 0 s@a 1 0 0 0\n"
                              "MODULE: top\n"
                              "CONNECT: !q 4 2 3 1 !sub@@port 8 4 2 0\n"
                              "CONNECT: @clk 0 0 0 0 clock 0 0 0 0\n"));
  // Before the first MODULE line a reference starting with "@" has no instance name.
  EXPECT_EQ(endsOf(description, "", "early").size(), 1u);

  const CnxEndList& driven = endsOf(description, "", "q");
  ASSERT_EQ(driven.size(), 1u);
  const CnxConnectionEnd& toDriver = driven[0];
  EXPECT_EQ(toDriver.peerInstance, "sub");
  EXPECT_EQ(toDriver.peerPort, "@port");
  EXPECT_EQ(std::vector<std::string>({toDriver.peerWidth1, toDriver.peerLow1, toDriver.peerWidth2,
                                      toDriver.peerLow2, toDriver.ownWidth1, toDriver.ownLow1,
                                      toDriver.ownWidth2, toDriver.ownLow2}),
            std::vector<std::string>({"8", "4", "2", "0", "4", "2", "3", "1"}));
  EXPECT_TRUE(toDriver.peerIsSource);
  EXPECT_TRUE(toDriver.peerInverted);
  EXPECT_FALSE(toDriver.peerIsConstant);

  const CnxEndList& driving = endsOf(description, "sub", "@port");
  ASSERT_EQ(driving.size(), 1u);
  const CnxConnectionEnd& toDriven = driving[0];
  EXPECT_EQ(toDriven.peerInstance, "");
  EXPECT_EQ(toDriven.peerPort, "q");
  EXPECT_EQ(std::vector<std::string>({toDriven.peerWidth1, toDriven.peerLow1, toDriven.peerWidth2,
                                      toDriven.peerLow2, toDriven.ownWidth1, toDriven.ownLow1,
                                      toDriven.ownWidth2, toDriven.ownLow2}),
            std::vector<std::string>({"4", "2", "3", "1", "8", "4", "2", "0"}));
  EXPECT_FALSE(toDriven.peerIsSource);
  EXPECT_FALSE(toDriven.peerInverted);

  // After it, "@" names the main module.
  EXPECT_EQ(endsOf(description, "top", "clk").size(), 1u);
  EXPECT_EQ(endsOf(description, "", "clock").at(0).peerInstance, "top");
}

TEST_F(ConnectionMapTest, ConstantDriversAreFoldedAndFiledUnderTheirText) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\n"
                              "CONNECT: a 1 0 0 0 !VCC 9 9 9 9\n"
                              "CONNECT: b 1 0 0 0 !GND 1 0 0 0\n"
                              "CONNECT: c 8 0 0 0 !5 8 0 0 0\n"
                              "CONNECT: d 8 0 0 0 !0 8 0 0 0\n"
                              "CONNECT: e 8 0 0 0 - 8 0 0 0\n"
                              "CONNECT: f 8 0 0 0 GND 8 0 0 0\n"
                              "CONNECT: g 8 0 0 0 !-6 8 0 0 0\n"
                              "CONNECT: h 8 0 0 0 !99999999999 8 0 0 0\n"));
  const std::pair<std::string, std::string> expected[] = {{"a", "GND"}, {"b", "VCC"},        {"c", "-6"},
                                                          {"d", "-1"},  {"e", "-"},          {"f", "GND"},
                                                          {"g", "5"},   {"h", "-2147483648"}};
  for (const auto& [port, constant] : expected) {
    SCOPED_TRACE(port);
    const CnxEndList& ends = endsOf(description, "", port);
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_EQ(ends[0].peerPort, constant);
    EXPECT_EQ(ends[0].peerInstance, "");
    EXPECT_TRUE(ends[0].peerIsConstant);
    EXPECT_FALSE(ends[0].peerInverted);
    EXPECT_EQ(ends[0].peerWidth1, "0");
    EXPECT_EQ(ends[0].peerLow1, "0");
  }
  // The constant's own end keeps "0" bounds, whatever values the line gave it.
  const CnxEndList& ground = endsOf(description, "", "GND");
  ASSERT_EQ(ground.size(), 2u);
  EXPECT_EQ(ground[0].peerPort, "a");
  EXPECT_EQ(ground[0].ownWidth1, "0");
  EXPECT_EQ(ground[0].ownLow2, "0");
  EXPECT_FALSE(ground[0].peerIsConstant);
  EXPECT_EQ(ground[1].peerPort, "f");
}

// Keys chosen by their bucket (h = h * 33 + c over the bytes as signed values, mod 17):
//   "D" 68 -> 0; "x" 120 -> 1; "ab" 97 * 33 + 98 = 3299 -> 1; "\xE9" "a" (-23) * 33 + 97 wraps to
//   2^32 - 662 -> 2 (read unsigned it would be 0); "a" 97 -> 12; "r" 114 -> 12; "A" 65 -> 14; "B" 66 -> 15;
//   "C" 67 -> 16. Buckets run 0 to 16, the newest key first within one.
const std::vector<std::string> kFilingOrder = {"a",
                                               "A",
                                               "D",
                                               "r",
                                               "x",
                                               "\xE9"
                                               "a",
                                               "C",
                                               "ab",
                                               "B"};
const std::vector<std::string> kIterationOrder = {"D",
                                                  "ab",
                                                  "x",
                                                  "\xE9"
                                                  "a",
                                                  "r",
                                                  "a",
                                                  "A",
                                                  "B",
                                                  "C"};

TEST_F(ConnectionMapTest, InstancesAndPortsIterateByBucketNewestFirst) {
  std::string text = kCnxHead + "MODULE: m\n";
  for (const std::string& key : kFilingOrder)
    text += "CONNECT: " + key + "@p 1 0 0 0 top@" + key + " 1 0 0 0\n";
  ASSERT_TRUE(read(text));
  const std::vector<std::string> instances = description.connectionMap.keys();
  // "top" ((116 * 33 + 111) * 33 + 112 = 130099 -> 15) was filed with the first line, long before "B".
  const std::vector<std::string> expected = {"D",
                                             "ab",
                                             "x",
                                             "\xE9"
                                             "a",
                                             "r",
                                             "a",
                                             "A",
                                             "B",
                                             "top",
                                             "C"};
  EXPECT_EQ(instances, expected);
  EXPECT_EQ(description.connectionMap.find("top")->keys(), kIterationOrder);

  std::vector<std::string> visited;
  description.connectionMap.forEach([&](const std::string& key, const CnxPortMap& ports) {
    visited.push_back(key);
    EXPECT_EQ(ports.size(), key == "top" ? kFilingOrder.size() : 1u);
  });
  EXPECT_EQ(visited, expected);
}

std::vector<std::string> ownLows(const CnxEndList& ends) {
  std::vector<std::string> out;
  for (const CnxConnectionEnd& end : ends)
    out.push_back(end.ownLow1 + "/" + end.ownLow2 + "/" + end.peerPort);
  return out;
}

TEST_F(ConnectionMapTest, EndsOfOnePortRunFromTheHighestBitDown) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\n"
                              "CONNECT: q 2 0 0 0 s0 2 0 0 0\n"
                              "CONNECT: q 2 4 0 0 s4 2 0 0 0\n"
                              "CONNECT: q 2 2 0 0 s2 2 0 0 0\n"
                              "CONNECT: q 2 4 0 0 t4 2 0 0 0\n"
                              "CONNECT: q 2 6 0 0 s6 2 0 0 0\n"
                              "CONNECT: q 2 -1 0 0 sm 2 0 0 0\n"
                              "CONNECT: q 2 x 0 0 sx 2 0 0 0\n"
                              "CONNECT: g 4 0 4 0 r0 4 0 0 0\n"
                              "CONNECT: g 4 0 4 8 r8 4 0 0 0\n"
                              "CONNECT: g 4 1 4 4 r4 4 0 0 0\n"));
  // Equal positions keep file order; a text that is no number counts as 0.
  EXPECT_EQ(
      ownLows(endsOf(description, "", "q")),
      (std::vector<std::string>{"6/0/s6", "4/0/s4", "4/0/t4", "2/0/s2", "0/0/s0", "x/0/sx", "-1/0/sm"}));
  // The first index decides before the second.
  EXPECT_EQ(ownLows(endsOf(description, "", "g")), (std::vector<std::string>{"1/4/r4", "0/8/r8", "0/0/r0"}));
}

TEST(CnxConnectionOrderTest, FilingOneEndAtATimeGivesTheOrderTheReaderGives) {
  plovix::testing::TempDir temp;
  const int lows[] = {3, 0, 7, 3, 5, 5, 1, 9, 0, 3, 8, 2, 7};
  std::string text = kCnxHead + "MODULE: m\n";
  CnxDescription single;
  for (size_t i = 0; i < std::size(lows); ++i) {
    const std::string low = std::to_string(lows[i]);
    const std::string peer = "p" + std::to_string(i);
    text += "CONNECT: q 1 " + low + " 0 0 " + peer + " 1 0 0 0\n";
    CnxConnectionEnd end;
    end.ownLow1 = low;
    end.peerPort = peer;
    single.addConnectionEnd("", "q", end);
  }
  temp.write("v.cnx", text);
  CnxDescription read(temp.path("v.cnx"));
  RecordingInterface ui;
  ASSERT_TRUE(read.readDescription(ui));
  std::vector<std::string> expected;
  for (const CnxConnectionEnd& end : *single.connectionMap.find("")->find("q"))
    expected.push_back(end.peerPort);
  std::vector<std::string> got;
  for (const CnxConnectionEnd& end : endsOf(read, "", "q")) got.push_back(end.peerPort);
  EXPECT_EQ(got, expected);
  EXPECT_EQ(expected, (std::vector<std::string>{"p7", "p10", "p2", "p12", "p4", "p5", "p0", "p3", "p9", "p11",
                                                "p6", "p1", "p8"}));
}

}  // namespace
}  // namespace plovix::testing

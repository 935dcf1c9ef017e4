// CONNECT lines: the two ends each line files, constant drivers, and the order in which the map and each
// port's list give them back.
#include <algorithm>
#include <span>

#include "CnxFixture.h"

namespace plovix::testing {
namespace {

using ConnectionMapTest = CnxFixture;

std::span<const CnxConnectionEnd> endsOf(const CnxDescription& d, const std::string& instance,
                                         const std::string& port) {
  return d.connectionMap.find(instance, port);
}

TEST_F(ConnectionMapTest, EachLineFilesAnEndUnderBothReferences) {
  ASSERT_TRUE(read(kCnxHead + "CONNECT: @early 1 0 0 0 s@a 1 0 0 0\n"
                              "MODULE: top\n"
                              "CONNECT: !q 4 2 3 1 !sub@@port 8 4 2 0\n"
                              "CONNECT: @clk 0 0 0 0 clock 0 0 0 0\n"));
  // Before the first MODULE line a reference starting with "@" has no instance name.
  EXPECT_EQ(endsOf(description, "", "early").size(), 1u);

  const auto driven = endsOf(description, "", "q");
  ASSERT_EQ(driven.size(), 1u);
  const CnxConnectionEnd& toDriver = driven[0];
  EXPECT_EQ(toDriver.peerInstance, "sub");
  EXPECT_EQ(toDriver.peerPort, "@port");
  EXPECT_EQ(textsOf(toDriver.peer), std::vector<std::string>({"8", "4", "2", "0"}));
  EXPECT_EQ(textsOf(toDriver.own), std::vector<std::string>({"4", "2", "3", "1"}));
  EXPECT_TRUE(toDriver.peerIsSource);
  EXPECT_TRUE(toDriver.peerInverted);
  EXPECT_FALSE(toDriver.peerIsConstant);

  const auto driving = endsOf(description, "sub", "@port");
  ASSERT_EQ(driving.size(), 1u);
  const CnxConnectionEnd& toDriven = driving[0];
  EXPECT_EQ(toDriven.peerInstance, "");
  EXPECT_EQ(toDriven.peerPort, "q");
  EXPECT_EQ(textsOf(toDriven.peer), std::vector<std::string>({"4", "2", "3", "1"}));
  EXPECT_EQ(textsOf(toDriven.own), std::vector<std::string>({"8", "4", "2", "0"}));
  EXPECT_FALSE(toDriven.peerIsSource);
  EXPECT_FALSE(toDriven.peerInverted);

  // After it, "@" names the main module.
  EXPECT_EQ(endsOf(description, "top", "clk").size(), 1u);
  ASSERT_EQ(endsOf(description, "", "clock").size(), 1u);
  EXPECT_EQ(endsOf(description, "", "clock")[0].peerInstance, "top");
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
    const auto ends = endsOf(description, "", port);
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_EQ(ends[0].peerPort, constant);
    EXPECT_EQ(ends[0].peerInstance, "");
    EXPECT_TRUE(ends[0].peerIsConstant);
    EXPECT_FALSE(ends[0].peerInverted);
    EXPECT_EQ(textsOf(ends[0].peer), std::vector<std::string>(4, "0"));
  }
  // The constant's own end keeps "0" bounds, whatever values the line gave it.
  const auto ground = endsOf(description, "", "GND");
  ASSERT_EQ(ground.size(), 2u);
  EXPECT_EQ(ground[0].peerPort, "a");
  EXPECT_EQ(textsOf(ground[0].own), std::vector<std::string>(4, "0"));
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
  const CnxConnectionMap& map = description.connectionMap;
  std::vector<std::string> instances;
  for (const CnxConnectionMap::Instance& instance : map.instances()) instances.push_back(instance.name.str());
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
  for (const CnxConnectionMap::Instance& instance : map.instances()) {
    std::vector<std::string> ports;
    for (const CnxConnectionMap::Port& port : map.portsOf(instance)) ports.push_back(port.name.str());
    EXPECT_EQ(ports, instance.name == "top" ? kIterationOrder : std::vector<std::string>{"p"});
    EXPECT_EQ(map.findInstance(instance.name), &instance);
  }
}

std::vector<std::string> ownLows(std::span<const CnxConnectionEnd> ends) {
  std::vector<std::string> out;
  for (const CnxConnectionEnd& end : ends)
    out.push_back(end.own.rows.low.text() + "/" + end.own.bits.low.text() + "/" + end.peerPort.str());
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
    for (const CnxConnectionEnd& end : endsOf(description, "", "q")) peers.push_back(end.peerPort.str());
    EXPECT_EQ(peers, c.peers);
  }
}

}  // namespace
}  // namespace plovix::testing

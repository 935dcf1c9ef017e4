// The connection map of a description: the two ends of every CONNECT: line, filed by instance and port, in
// the order every consumer walks them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "cnx/Bounds.h"
#include "cnx/FlatMap.h"
#include "cnx/TextPool.h"

namespace plovix {

// One end of a connection as filed under the other end's (instance, port): the other end (the peer) with its
// shape, and the shape the connection has on the own side.
struct CnxConnectionEnd {
  Name peerInstance;  // empty for a variation port or a constant
  Name peerPort;      // for a constant: its text ("VCC", "GND" or a number)
  Shape peer;         // all "0" for a constant
  Shape own;
  bool peerIsSource = false;    // the peer drives the own end (the end was filed under the driven reference)
  bool peerInverted = false;    // the driving reference was written with "!"
  bool peerIsConstant = false;  // the driving reference is a constant
  int32_t line = 0;             // the CONNECT: line's number in the description
};

// Every CONNECT: line files two ends: one under its driven reference describing the driver (peerIsSource),
// one under its driving reference describing the driven end. Instances (empty for variation ports and
// constants) and ports are walked in the order of a 17-bucket chained hash table: a key's bucket is h mod
// 17 with h = h * 33 + c over its bytes as signed 8-bit values, buckets 0 to 16, and within a bucket the
// newest key first. The ends of one port are in descending bit position: by (own.rows.low, own.bits.low)
// read as integers, the greater first, ends with equal positions in file order.
class CnxConnectionMap {
 public:
  struct Port {
    Name name;
    uint32_t firstEnd = 0, endCount = 0;
  };
  struct Instance {
    Name name;
    uint32_t firstPort = 0, portCount = 0;
  };

  std::span<const Instance> instances() const { return instances_; }
  std::span<const Port> portsOf(const Instance& instance) const {
    return std::span<const Port>(ports_).subspan(instance.firstPort, instance.portCount);
  }
  std::span<const CnxConnectionEnd> endsOf(const Port& port) const {
    return std::span<const CnxConnectionEnd>(ends_).subspan(port.firstEnd, port.endCount);
  }

  // The instance filed under `name`, or null.
  const Instance* findInstance(Name name) const;
  // The ends filed under (instance, port); empty when there are none.
  std::span<const CnxConnectionEnd> find(std::string_view instance, std::string_view port) const;

  // Calls f(instance, port, end) for every end, in the walking order.
  template <class F>
  void forEachEnd(F&& f) const {
    for (const Instance& instance : instances_) {
      for (const Port& port : portsOf(instance)) {
        for (const CnxConnectionEnd& end : endsOf(port)) f(instance.name, port.name, end);
      }
    }
  }

  bool empty() const { return ends_.empty(); }
  size_t endCount() const { return ends_.size(); }

  // The bucket of a key in the walking order.
  static uint32_t bucketOf(std::string_view key);

 private:
  friend class CnxConnectionMapBuilder;

  std::vector<Instance> instances_;
  std::vector<Port> ports_;
  std::vector<CnxConnectionEnd> ends_;
  FlatMap<Name, uint32_t, NameHash> instanceIndex_;
};

// Files the ends of a whole file as the reader meets them, and puts them in their walking order at the end.
// The port names filed must be names of `names`: the builder finds a port's list through the tag of its
// name (the first list filed under the name, for any instance), and keeps a map only for the names filed
// under several instances.
class CnxConnectionMapBuilder {
 public:
  explicit CnxConnectionMapBuilder(TextPool& names) : names_(&names) {}

  // Makes room for the ends of `connections` CONNECT: lines over about `instances` instances.
  void reserve(size_t connections, size_t instances);
  void file(Name instance, Name port, const CnxConnectionEnd& end);
  // The map; the builder is empty afterwards.
  CnxConnectionMap finish();

 private:
  struct PortKey {
    uint32_t instance;
    Name port;
    friend bool operator==(const PortKey&, const PortKey&) = default;
  };
  struct PortKeyHash {
    size_t operator()(const PortKey& key) const {
      return key.port.hash() ^ (key.instance * 0x9E3779B97F4A7C15ull);
    }
  };
  struct FiledPort {
    uint32_t instance;
    Name name;
    uint32_t endCount = 0;
    uint8_t bucket = 0;  // of the name, taken while the name is at hand
  };

  uint32_t portOf(uint32_t instance, Name port);

  TextPool* names_;
  std::vector<Name> instanceNames_;       // in the order first filed
  std::vector<uint8_t> instanceBuckets_;  // the bucket of each
  FlatMap<Name, uint32_t, NameHash> instanceOf_;
  std::vector<FiledPort> ports_;                    // in the order first filed
  FlatMap<PortKey, uint32_t, PortKeyHash> portOf_;  // the lists not found through their name's tag
  std::vector<CnxConnectionEnd> ends_;              // in file order
  std::vector<uint32_t> portOfEnd_;
};

}  // namespace plovix

// Filing connection ends in the description's connection map, each port's ends by descending bit position.
#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "cnx/CnxDescription.h"

namespace plovix {

// Whether end `a` stands before end `b` in a port's list: its (ownLow1, ownLow2), read as integers, is the
// greater pair. Ends with equal pairs keep the order in which they were filed.
bool standsBefore(const CnxConnectionEnd& a, const CnxConnectionEnd& b);

// The list of ends under (instance, port), created (with its inner map) when missing.
CnxEndList& connectionEndList(CnxConnectionMap& map, const std::string& instance, const std::string& port);

// Files the ends of a whole file: appends each end and puts the lists in order once at the end, which gives
// the same lists as filing every end in place, in time linear in the number of ends for ordered input.
class CnxEndFiler {
 public:
  explicit CnxEndFiler(CnxConnectionMap& map) : map_(map) {}

  void file(const std::string& instance, const std::string& port, CnxConnectionEnd end);

  // Orders every list that an end was appended to out of order.
  void finish();

 private:
  CnxConnectionMap& map_;
  std::vector<CnxEndList*> unordered_;
  std::unordered_set<CnxEndList*> marked_;
};

}  // namespace plovix

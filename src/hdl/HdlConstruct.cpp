// The table of HDL constructs: their messages, names and remedies.
#include "hdl/HdlConstruct.h"

#include <array>

namespace plovix {

namespace {

struct ConstructRow {
  HdlConstruct construct;
  const char* name;
  Msg message;
  HdlRemedy vhdl;  // the remedy where the construct is found in VHDL
  HdlRemedy verilog;
};

constexpr HdlRemedy kValid = HdlRemedy::kValidText;
constexpr HdlRemedy kNotYet = HdlRemedy::kNotCoveredYet;
constexpr HdlRemedy kOther = HdlRemedy::kOtherLanguage;
constexpr HdlRemedy kNothing = HdlRemedy::kNothing;

// In the order of the enum; a construct a language never holds has the remedy kNothing there (unused).
constexpr std::array<ConstructRow, 23> kConstructs = {{
    {HdlConstruct::kEmptyGenericMap, "empty-generic-map", Msg::kHdlEmptyGenericMap, kValid, kNothing},
    {HdlConstruct::kReservedWord, "reserved-word", Msg::kHdlReservedWord, kOther, kNothing},
    {HdlConstruct::kPassedParameter, "passed-parameter", Msg::kHdlPassedParameter, kValid, kNothing},
    {HdlConstruct::kUpperCaseParameter, "upper-case-parameter", Msg::kHdlUpperCaseParameter, kNothing,
     kValid},
    {HdlConstruct::kSlicedFeeds, "sliced-feeds", Msg::kHdlSlicedFeeds, kValid, kNothing},
    {HdlConstruct::kConstantSlice, "constant-slice", Msg::kHdlConstantSlice, kValid, kNothing},
    {HdlConstruct::kOneBitDrivesBus, "one-bit-drives-bus", Msg::kHdlOneBitDrivesBus, kNothing, kNothing},
    {HdlConstruct::kNumericDefault, "numeric-default", Msg::kHdlNumericDefault, kValid, kNothing},
    {HdlConstruct::kNumberDrivesBit, "number-drives-bit", Msg::kHdlNumberDrivesBit, kValid, kNothing},
    {HdlConstruct::kTwoDimensionalRows, "two-dimensional-rows", Msg::kHdlTwoDimensionalRows, kOther, kOther},
    {HdlConstruct::kInvertedOutput, "inverted-output", Msg::kHdlInvertedOutput, kValid, kValid},
    {HdlConstruct::kOutputRange, "output-range", Msg::kHdlOutputRange, kNothing, kValid},
    {HdlConstruct::kMainPortNarrowed, "main-port-narrowed", Msg::kHdlMainPortNarrowed, kNothing, kValid},
    {HdlConstruct::kVccDrivesBus, "vcc-drives-bus", Msg::kHdlVccDrivesBus, kNothing, kValid},
    {HdlConstruct::kPinReadTwice, "pin-read-twice", Msg::kHdlPinReadTwice, kValid, kValid},
    {HdlConstruct::kVerilogKeyword, "verilog-keyword", Msg::kHdlVerilogKeyword, kNothing, kOther},
    {HdlConstruct::kLowerCasedName, "lower-cased-name", Msg::kHdlLowerCasedName, kNothing, kValid},
    {HdlConstruct::kBitOfBusToBit, "bit-of-bus-to-bit", Msg::kHdlBitOfBusToBit, kValid, kValid},
    {HdlConstruct::kSliceToWholePort, "slice-to-whole-port", Msg::kHdlSliceToWholePort, kValid, kValid},
    {HdlConstruct::kBitOfOutputToBit, "slice-above-zero", Msg::kHdlBitOfOutputToBit, kValid, kValid},
    {HdlConstruct::kGenericsOfFirstInstance, "generics-of-first-instance", Msg::kHdlGenericsOfFirstInstance,
     kValid, kNothing},
    {HdlConstruct::kConstantAboveZero, "constant-above-zero", Msg::kHdlConstantAboveZero, kValid, kNothing},
    {HdlConstruct::kInvertedSlice, "inverted-slice", Msg::kHdlInvertedSlice, kValid, kValid},
}};

constexpr bool rowsInOrder() {
  for (size_t i = 0; i < kConstructs.size(); ++i)
    if (static_cast<size_t>(kConstructs[i].construct) != i) return false;
  return true;
}
static_assert(rowsInOrder(), "the rows of kConstructs must follow the order of HdlConstruct");

const ConstructRow& rowOf(HdlConstruct construct) {
  return kConstructs[static_cast<size_t>(construct)];
}

}  // namespace

Msg hdlConstructMessage(HdlConstruct construct) {
  return rowOf(construct).message;
}

const char* hdlConstructName(HdlConstruct construct) {
  return rowOf(construct).name;
}

HdlRemedy hdlRemedy(HdlConstruct construct, OutputLanguage language) {
  return language == OutputLanguage::kVhdl ? rowOf(construct).vhdl : rowOf(construct).verilog;
}

}  // namespace plovix

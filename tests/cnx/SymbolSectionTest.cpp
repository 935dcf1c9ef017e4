// Accepted SYMBOL: lines and the element records they leave, in file order.
#include "CnxFixture.h"

namespace plovix::testing {
namespace {

using SymbolSectionTest = CnxFixture;

template <class Record>
const Record& recordAt(const CnxDescription& d, size_t index, SymbolKind kind) {
  EXPECT_EQ(d.symbolElements.at(index).kind, kind) << "element " << index;
  return std::get<Record>(d.symbolElements.at(index).record);
}

TEST_F(SymbolSectionTest, EveryElementKindWithItsOperands) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\n"
                              "SYMBOL: LINE 0 -16 64 - \n"
                              "SYMBOL: RECT 1 2 3 4 DASHED THICK\n"
                              "SYMBOL: ARC 1 2 3 4 5 6 -7\n"
                              "SYMBOL: CIRCLE 10 20 5\n"
                              "SYMBOL: CIRCLE 10 20 5 TRUE\n"
                              "SYMBOL: TEXT \"two words\" 8 9\n"
                              "SYMBOL: TEXT t 8 9 VERT \"Arial,8\"\n"
                              "SYMBOL: PARAMETER \"WIDTH=8/MODE=up\" Courier\n"
                              "SYMBOL: BOX 200 120 16 -8\n"));
  EXPECT_FALSE(description.defaultSymbolBox);
  ASSERT_EQ(description.symbolElements.size(), 9u);

  const SymbolLine& line = recordAt<SymbolLine>(description, 0, SymbolKind::kLine);
  EXPECT_EQ(std::vector<int32_t>({line.x1, line.y1, line.x2, line.y2}),
            std::vector<int32_t>({0, -16, 64, 0}));
  EXPECT_EQ(line.style, "");
  EXPECT_EQ(line.width, "");
  EXPECT_FALSE(line.isRect);
  const SymbolLine& rect = recordAt<SymbolLine>(description, 1, SymbolKind::kLine);
  EXPECT_TRUE(rect.isRect);
  EXPECT_EQ(rect.style, "DASHED");
  EXPECT_EQ(rect.width, "THICK");

  const SymbolArc& arc = recordAt<SymbolArc>(description, 2, SymbolKind::kArc);
  EXPECT_EQ(std::vector<int32_t>(
                {arc.centerX, arc.centerY, arc.startX, arc.startY, arc.endX, arc.endY, arc.radius}),
            std::vector<int32_t>({1, 2, 3, 4, 5, 6, -7}));

  EXPECT_FALSE(recordAt<SymbolCircle>(description, 3, SymbolKind::kCircle).filled);
  const SymbolCircle& filled = recordAt<SymbolCircle>(description, 4, SymbolKind::kCircle);
  EXPECT_TRUE(filled.filled);
  EXPECT_EQ(filled.radius, 5);

  const SymbolText& plain = recordAt<SymbolText>(description, 5, SymbolKind::kText);
  EXPECT_EQ(plain.text, "two words");
  EXPECT_EQ(plain.orientation, "");
  EXPECT_EQ(plain.font, "");
  const SymbolText& text = recordAt<SymbolText>(description, 6, SymbolKind::kText);
  EXPECT_EQ(text.x, 8);
  EXPECT_EQ(text.orientation, "VERT");
  EXPECT_EQ(text.font, "Arial,8");
  EXPECT_EQ(text.altText, "");
  EXPECT_EQ(text.textType, "");

  const SymbolParameter& parameter = recordAt<SymbolParameter>(description, 7, SymbolKind::kParameter);
  EXPECT_EQ(parameter.text, "WIDTH=8/MODE=up");
  EXPECT_EQ(parameter.font, "Courier");

  const SymbolBox& box = recordAt<SymbolBox>(description, 8, SymbolKind::kBox);
  EXPECT_EQ(std::vector<int32_t>({box.sheetWidth, box.sheetHeight, box.nameX, box.nameY}),
            std::vector<int32_t>({200, 120, 16, -8}));
}

TEST_F(SymbolSectionTest, PinStubLabelIsGivenEmptyOrThePinName) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\n"
                              "SYMBOL: PINSTUB 0 8 IN data 4 8 \"D in\" HORIZ \"Arial,8\"\n"
                              "SYMBOL: PINSTUB 0 16 OUT q 4 16 \"\" VERT\n"
                              "SYMBOL: PINSTUB 0 24 BIDIR io 4 24\n"));
  EXPECT_TRUE(description.defaultSymbolBox);
  const SymbolPinStub& given = recordAt<SymbolPinStub>(description, 0, SymbolKind::kPinStub);
  EXPECT_EQ(given.stubType, "IN");
  EXPECT_EQ(given.pinName, "data");
  EXPECT_EQ(given.textX, 4);
  EXPECT_EQ(given.textY, 8);
  EXPECT_EQ(given.label, "D in");
  EXPECT_EQ(given.orientation, "HORIZ");
  EXPECT_EQ(given.font, "Arial,8");
  const SymbolPinStub& hidden = recordAt<SymbolPinStub>(description, 1, SymbolKind::kPinStub);
  EXPECT_EQ(hidden.label, "");
  EXPECT_EQ(hidden.orientation, "VERT");
  const SymbolPinStub& named = recordAt<SymbolPinStub>(description, 2, SymbolKind::kPinStub);
  EXPECT_EQ(named.label, "io");
  EXPECT_EQ(named.orientation, "");
}

TEST_F(SymbolSectionTest, NumbersOutsideThe32BitRangeAreHeldAtItsEnds) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\nSYMBOL: LINE 99999999999 -99999999999 007 -0\n"));
  const SymbolLine& line = recordAt<SymbolLine>(description, 0, SymbolKind::kLine);
  EXPECT_EQ(line.x1, INT32_MAX);
  EXPECT_EQ(line.y1, INT32_MIN);
  EXPECT_EQ(line.x2, 7);
  EXPECT_EQ(line.y2, 0);
}

}  // namespace
}  // namespace plovix::testing

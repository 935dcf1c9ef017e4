// The texts that the CNX reader writes into the error log, one per fault it can find.
#pragma once

#include <string_view>

namespace plovix::cnxmsg {

// The file as a whole: its first two lines and its module lines.
inline constexpr std::string_view kUnexpectedEnd = "Unexpected end of file encountered";
inline constexpr std::string_view kNoGenerationMode = "No valid wizard signature (generation mode ) found";
inline constexpr std::string_view kUnknownVersion = "Unknown version number";
inline constexpr std::string_view kNoModule = "No module name found in the CNX file";
inline constexpr std::string_view kUnknownStatement = "Unknown line identifier encountered";

// Operands of the statement lines.
inline constexpr std::string_view kNoIdentifier = "Valid identifier not found.";
inline constexpr std::string_view kIdentifierStart =
    "Identifiers cannot begin with a non-alphabetic character.";
inline constexpr std::string_view kNoType = "Valid variable/constant type not found.";
inline constexpr std::string_view kNoValue = "Missing value string";
inline constexpr std::string_view kNoPortType = "Valid port type (input, output, etc.) not found.";
inline constexpr std::string_view kExtraTokens = "Extra tokens found at the end of line.";

// Operands of SYMBOL: lines.
inline constexpr std::string_view kUnknownSymbolElement =
    "Unknown symbol element (line, circle, etc.) identifier encountered.";
inline constexpr std::string_view kNoNumber = "Valid numeric value not found.";
inline constexpr std::string_view kNoLineStyle = "Valid line style not found.";
inline constexpr std::string_view kNoLineWidth = "Valid line width not found.";
inline constexpr std::string_view kNoStubType = "Valid stub type not found.";
inline constexpr std::string_view kNoOrientation = "Valid orientation not found.";
inline constexpr std::string_view kNoLogical = "Valid logical value not found.";

}  // namespace plovix::cnxmsg

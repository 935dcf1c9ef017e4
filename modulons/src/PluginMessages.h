// Every text the plug-in shows: refusals, prompts and notes.
#pragma once

#include <string>

namespace plovix::wizard {

std::string numberRangeText(long long minimum, long long maximum);

// Refusals of the command line.
std::string missingModulonText(const std::string& knownModulons);
std::string unknownModulonText(const std::string& name, const std::string& knownModulons);
std::string missingOutputText();
std::string strayArgumentText(const std::string& argument);
std::string unknownSettingText(const std::string& modulon, const std::string& name, const std::string& known);
std::string badValueText(const std::string& name, const std::string& value, const std::string& allowed);
std::string cannotWriteText(const std::string& path, const std::string& reason);

// Values that do not fit together.
std::string modulusTooLargeText(long long modulus, long long width);
std::string valueTooWideText(const std::string& name, long long value, long long width);
std::string tooManyDecodesText(long long decodes, long long width);
std::string tooManyWordsText(long long words, long long widthad);
std::string noCompareOutputText();
std::string noShiftOutputText();
std::string noBusPathText();
std::string productTooWideText(long long widthp, long long fullWidth);
std::string needsPipelineText(const std::string& name);
std::string rotateHasNoFlagText(const std::string& name);
std::string flagNeedsDirectionText(const std::string& name, const std::string& directions);
// The storage and memory modulons.
std::string setValueTooWideText(const std::string& name, long long value, long long width);
std::string loadNeedsToggleText();
std::string missingFileText();
std::string fileNameText();
std::string readEnableNeedsClockText();
std::string levelAboveDepthText(const std::string& name, long long level, long long words);

// The usage text of --help; modulonLines holds one line per modulon.
std::string usageText(const std::string& modulonLines);
std::string modulonLineText(const std::string& modulon, const std::string& title);
// What a text setting allows.
std::string freeTextText();

// Terminal prompts.
std::string promptHeadingText(const std::string& modulon, const std::string& title, const std::string& path);
std::string promptText(const std::string& name, const std::string& question, const std::string& allowed,
                       const std::string& current);
std::string finishPromptText();
std::string cancelledText();

// The dialog.
std::string dialogTitleText(const std::string& modulon, const std::string& title);

}  // namespace plovix::wizard

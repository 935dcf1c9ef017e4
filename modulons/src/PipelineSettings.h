// The optional output pipeline that arithmetic modulons share: its depth, clock enable and clear.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "DescriptionText.h"
#include "Setting.h"

namespace plovix::wizard {

// LPM_PIPELINE, CLKEN and ACLR, in the order they are asked.
std::vector<Setting> pipelineSettings();

// A message when CLKEN or ACLR is asked for without a pipeline.
std::optional<std::string> checkPipeline(const SettingValues& values);

// The pipeline's depth as a constant of the main module, when there is a pipeline.
void describePipelineConstant(const SettingValues& values, DescriptionText& cnx);
// The ports clock, clken and aclr that the pipeline asks for, connected to the main module.
void describePipelinePorts(const SettingValues& values, DescriptionText& cnx);

}  // namespace plovix::wizard

// The ids of the frame's buttons and of the pages' own controls, by which checks name the control that gets
// the focus.
#pragma once

namespace plovix {

// The frame's buttons and separator.
inline constexpr int kControlCancel = 2;
inline constexpr int kControlFinish = 10;
inline constexpr int kControlBack = 11;
inline constexpr int kControlNext = 12;
inline constexpr int kControlSeparator = 14;

// The modulon page.
inline constexpr int kControlModulonTree = 1036;
inline constexpr int kControlThdlButton = 1029;
inline constexpr int kControlVhdlButton = 1030;
inline constexpr int kControlVerilogButton = 1031;
inline constexpr int kControlOutputName = 1003;
inline constexpr int kControlBrowse = 1032;
inline constexpr int kControlLibraryList = 1035;

// The browser page.
inline constexpr int kControlLookIn = 1018;
inline constexpr int kControlUpOneLevel = 1024;
inline constexpr int kControlListView = 1023;
inline constexpr int kControlDetailedView = 1022;
inline constexpr int kControlFileList = 1006;
inline constexpr int kControlFileName = 1003;
inline constexpr int kControlFileType = 1019;
inline constexpr int kControlWizardOnly = 1028;
inline constexpr int kControlModulonBox = 1020;

}  // namespace plovix

// The fixed texts the pages show: button captions, labels, static texts, titles and filters.
#pragma once

#include <string_view>

namespace plovix::pagetexts {

// The frame's buttons.
inline constexpr std::string_view kNext = "&Next >";
inline constexpr std::string_view kBack = "< &Back";
inline constexpr std::string_view kCancel = "Cancel";
inline constexpr std::string_view kFinish = "&Finish";

// The action page.
inline constexpr std::string_view kActionIntro =
    "The Plovix Plug-In Manager helps you create or modify design files that contain custom variations of "
    "modulons.";
inline constexpr std::string_view kActionQuestion = "Which action do you want to perform?";
inline constexpr std::string_view kCreateChoice = "&Create a new custom modulon variation";
inline constexpr std::string_view kEditChoice = "&Edit an existing custom modulon variation";

// The modulon page.
inline constexpr std::string_view kModulonTreeLabel = "Available &Modulons:";
inline constexpr std::string_view kThdlButton = "&THDL";
inline constexpr std::string_view kVhdlButton = "&VHDL";
inline constexpr std::string_view kVerilogButton = "Verilog &HDL";
inline constexpr std::string_view kOutputNameLabel = "What name do you want for the &output file?";
inline constexpr std::string_view kBrowseButton = "Bro&wse...";
inline constexpr std::string_view kLibraryListLabel = "Your current user library directories are:";
inline constexpr std::string_view kModulonQuestion =
    "Which modulon would you like to customize? Select a modulon from the list at left.";
inline constexpr std::string_view kTypeQuestion = "Which &type of output file do you want to create?";
inline constexpr std::string_view kProjectNote =
    "Note: To compile a project successfully in the Qelvix II software, your design files must be in the "
    "project directory or a user library that you specify with the User Libraries command (Options menu).";
inline constexpr std::string_view kSaveDialogTitle = "Select file name";
inline constexpr std::string_view kSaveDialogFilter =
    "All Files (*.*)|*.*|THDL Files (*.tdf)|*.tdf|VHDL Files (*.vhdl)|*.vhdl|Verilog Files (*.v)|*.v||";

// The browser page.
inline constexpr std::string_view kBrowserTitle = "[page 2b]";
inline constexpr std::string_view kLookInLabel = "Look &in:";
inline constexpr std::string_view kUpOneLevel = "Up One Level";
inline constexpr std::string_view kListView = "List View";
inline constexpr std::string_view kDetailedView = "Detailed View";
inline constexpr std::string_view kFileNameLabel = "&File name:";
inline constexpr std::string_view kFileTypeLabel = "Files of &type:";
inline constexpr std::string_view kWizardOnlyCheck = "&Show only wizard-generated files";
inline constexpr std::string_view kModulonBoxLabel = "&Modulon name:";
inline constexpr std::string_view kBrowserQuestion =
    "Which custom modulon variation file do you wish to edit?";
inline constexpr std::string_view kBrowserModulonNote =
    "The current modulon variation is based on the modulon shown below. If you want to use a different "
    "modulon as the basis for your changes to this custom variation, select a different modulon name:";
inline constexpr std::string_view kColumnFileName = "FileName";
inline constexpr std::string_view kColumnSize = "Size";
inline constexpr std::string_view kColumnType = "Type";
inline constexpr std::string_view kColumnLastModified = "Last Modified";
inline constexpr std::string_view kFolderType = "Folder";

}  // namespace plovix::pagetexts

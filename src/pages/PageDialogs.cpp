#include "pages/PageDialogs.h"

namespace {

using K = DlgItemKind;
constexpr const char* kSampleText = "AaBbCcDdEeWwXxYyZz";

}  // namespace

const DLGTEMPLATE& GetEditorFontDialog() {
    static const DLGTEMPLATE dialog{
        4300,
        "Editor Font",
        340,
        201,
        {
            {K::Text, -1, "Font :", 7, 7, 130, 8, 0, 0},
            {K::ListBox, 1001, nullptr, 7, 17, 130, 90, DIS_SORTED, 0},
            {K::CheckBox, 1046, "Only fixed pitch fonts", 7, 110, 130, 10, 0, 0},
            {K::CheckBox, 1045, "Only TrueType Fonts", 7, 122, 130, 10, 0, 0},
            {K::Text, -1, "Font Style :", 143, 7, 70, 8, 0, 0},
            {K::ListBox, 1000, nullptr, 143, 17, 70, 48, 0, 0},
            {K::Text, -1, "Size :", 219, 7, 40, 8, 0, 0},
            {K::ListBox, 1002, nullptr, 219, 17, 40, 90, 0, 0},
            {K::Group, -1, "Normal Text Color", 265, 7, 68, 62, 0, 0},
            {K::Text, -1, "Foreground :", 271, 18, 58, 8, 0, 0},
            {K::ComboBox, 1047, nullptr, 271, 27, 56, 12, DIS_SORTED, 0},
            {K::Text, -1, "Background :", 271, 42, 58, 8, 0, 0},
            {K::ComboBox, 1048, nullptr, 271, 51, 56, 12, DIS_SORTED, 0},
            {K::Group, -1, "Selected Text Color", 265, 72, 68, 62, 0, 0},
            {K::Text, -1, "Foreground :", 271, 83, 58, 8, 0, 0},
            {K::ComboBox, 1051, nullptr, 271, 92, 56, 12, DIS_SORTED, 0},
            {K::Text, -1, "Background :", 271, 107, 58, 8, 0, 0},
            {K::ComboBox, 1052, nullptr, 271, 116, 56, 12, DIS_SORTED, 0},
            {K::Group, -1, "Sample", 7, 136, 326, 58, 0, 0},
            {K::Static, 1040, kSampleText, 14, 148, 154, 40, DIS_CENTER | DIS_SUNKEN, 0},
            {K::Static, 1049, kSampleText, 173, 148, 153, 40, DIS_CENTER | DIS_SUNKEN, 0},
            {K::Group, -1, "Effect", 143, 70, 116, 37, 0, 0},
            {K::CheckBox, 1044, "Underline", 150, 81, 100, 10, 0, 0},
            {K::CheckBox, 1043, "Strike out", 150, 93, 100, 10, 0, 0},
        }};
    return dialog;
}

const DLGTEMPLATE& GetEditorOptionsDialog() {
    static const DLGTEMPLATE dialog{
        4301,
        "Editor Options",
        340,
        201,
        {
            {K::Group, -1, "Keyword preprocessor", 7, 7, 190, 76, 0, 0},
            {K::RadioButton, 1030, "No conversion", 14, 19, 182, 10, DIS_GROUP, 0},
            {K::RadioButton, 1031, "Change to uppercase", 14, 31, 182, 10, 0, 0},
            {K::RadioButton, 1032, "Change to lowercase", 14, 43, 182, 10, 0, 0},
            {K::RadioButton, 1033, "Change to lowercase with first letter in uppercase", 14, 55,
             182, 10, 0, 0},
            {K::CheckBox, 1029, "Word completion", 14, 68, 80, 10, 0, 0},
            {K::CheckBox, 1014, "Block collapsing mode", 96, 68, 96, 10, 0, 0},
            {K::Group, -1, "Miscellaneous", 7, 88, 190, 57, 0, 0},
            {K::CheckBox, 1034, "Margin mode", 14, 100, 80, 10, 0, 0},
            {K::Text, -1, "Margin Background Color :", 14, 115, 96, 8, 0, 0},
            {K::ComboBox, 1039, nullptr, 112, 113, 60, 12, DIS_SORTED, 0},
            {K::Text, -1, "Bookmark Color :", 14, 130, 96, 8, 0, 0},
            {K::ComboBox, 1040, nullptr, 112, 128, 60, 12, DIS_SORTED, 0},
            {K::CheckBox, 1035, "Drag and drop editing", 96, 100, 96, 10, 0, 0},
            {K::Group, -1, "Tab Settings", 202, 7, 131, 64, 0, 0},
            {K::Text, -1, "Tab Size : ", 209, 21, 38, 8, 0, 0},
            {K::Edit, 1017, nullptr, 249, 19, 30, 12, DIS_NUMBER, 0},
            {K::UpDown, 1018, nullptr, 279, 19, 10, 12, 0, 1017},
            {K::CheckBox, 1019, "Convert tabs to spaces", 209, 34, 122, 10, 0, 0},
            {K::CheckBox, 1020, "Convert leading spaces into tabs", 209, 46, 122, 10, DIS_DISABLED,
             0},
            {K::CheckBox, 1021, "Remove tailing spaces", 209, 58, 122, 10, DIS_DISABLED, 0},
            {K::Group, -1, "Syntax Coloring", 202, 76, 131, 118, 0, 0},
            {K::CheckBox, 1007, "Use Syntax Color", 209, 88, 120, 10, 0, 0},
            {K::ListBox, 1005, nullptr, 209, 101, 117, 70, 0, 0},
            {K::Group, -1, "Sample", 7, 150, 190, 44, 0, 0},
            {K::Static, 1041, kSampleText, 14, 161, 176, 27, DIS_CENTER | DIS_SUNKEN, 0},
            {K::Text, -1, "Color : ", 209, 177, 28, 8, 0, 0},
            {K::ComboBox, 1006, nullptr, 239, 175, 87, 12, DIS_SORTED, 0},
        }};
    return dialog;
}

const DLGTEMPLATE& GetEditorShortcutDialog() {
    static const DLGTEMPLATE dialog{
        4302,
        "Editor Shortcuts",
        340,
        201,
        {
            {K::Text, -1, "Shortcut", 7, 7, 70, 8, 0, 0},
            {K::Edit, 1008, nullptr, 7, 17, 70, 12, 0, 0},
            {K::Text, -1, "Text", 82, 7, 190, 8, 0, 0},
            {K::Edit, 1009, nullptr, 82, 17, 190, 12, 0, 0},
            {K::PushButton, 1012, "&Set", 278, 16, 55, 14, 0, 0},
            {K::ListView, 1010, nullptr, 7, 36, 326, 140, 0, 0},
            {K::CheckBox, 1013, "Enable Shortcuts", 7, 183, 120, 10, 0, 0},
            {K::PushButton, 1011, "&Delete", 278, 181, 55, 14, 0, 0},
        }};
    return dialog;
}

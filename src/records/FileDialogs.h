#pragma once

#include <string_view>

namespace kordavan {

/// What a file dialog is asked with.
struct FileDialogText {
    std::string_view Title;
    std::string_view FileName;          // shown first
    std::string_view DefaultExtension;  // of a name without one; none when opening
    std::string_view Filters;           // caption and pattern in turn, each closed by a bar
    int SelectedFilter;                 // counted from 1
};

inline constexpr std::string_view CriteriaFilters = "All Files (*.*)|*.*|Kordavan Files (*.CRI)|*.CRI|";

inline constexpr FileDialogText OpenCriteriaDialog{.Title = "Open Beam Criteria File",
                                                   .FileName = "*.CRI",
                                                   .DefaultExtension = {},
                                                   .Filters = CriteriaFilters,
                                                   .SelectedFilter = 2};
inline constexpr FileDialogText SaveCriteriaDialog{.Title = "Save Beam Criteria As",
                                                   .FileName = "*.CRI",
                                                   .DefaultExtension = "CRI",
                                                   .Filters = CriteriaFilters,
                                                   .SelectedFilter = 2};

inline constexpr std::string_view CustomValuesFilters = "All Files (*.*)|*.*|Kordavan Files (*.Val)|*.Val|";

inline constexpr FileDialogText OpenCustomValuesDialog{.Title = "Open Custom Value File",
                                                       .FileName = "*.Val",
                                                       .DefaultExtension = {},
                                                       .Filters = CustomValuesFilters,
                                                       .SelectedFilter = 2};
inline constexpr FileDialogText SaveCustomValuesDialog{.Title = "Save Custom Values As",
                                                       .FileName = "*.Val",
                                                       .DefaultExtension = "VAL",
                                                       .Filters = CustomValuesFilters,
                                                       .SelectedFilter = 2};

inline constexpr std::string_view CustomPostFilters = "All Files (*.*)|*.*|Kordavan Files (*.CPV)|*.CPV|";

inline constexpr FileDialogText OpenCustomPostDialog{.Title = "Open Custom Post Value File",
                                                     .FileName = "*.CPV",
                                                     .DefaultExtension = {},
                                                     .Filters = CustomPostFilters,
                                                     .SelectedFilter = 2};
inline constexpr FileDialogText SaveCustomPostDialog{.Title = "Save Custom Values As",
                                                     .FileName = "*.CPV",
                                                     .DefaultExtension = "CPV",
                                                     .Filters = CustomPostFilters,
                                                     .SelectedFilter = 2};

inline constexpr std::string_view DataRecordFilters = "All Files (*.*)|*.*|Kordavan Files (*.Dat)|*.Dat|";

inline constexpr FileDialogText OpenDataRecordDialog{.Title = "Open Data Record",
                                                     .FileName = "*.Dat",
                                                     .DefaultExtension = {},
                                                     .Filters = DataRecordFilters,
                                                     .SelectedFilter = 2};
inline constexpr FileDialogText SaveDataRecordDialog{.Title = "Save Data Record As",
                                                     .FileName = "*.Dat",
                                                     .DefaultExtension = "Dat",
                                                     .Filters = DataRecordFilters,
                                                     .SelectedFilter = 2};

inline constexpr std::string_view WoodColumnFilters = "All Files (*.*)|*.*|Kordavan Files (*.Col)|*.Col|";

inline constexpr FileDialogText OpenWoodColumnDialog{.Title = "Open Column Record",
                                                     .FileName = "*.Col",
                                                     .DefaultExtension = {},
                                                     .Filters = WoodColumnFilters,
                                                     .SelectedFilter = 2};
inline constexpr FileDialogText SaveWoodColumnDialog{.Title = "Save Column Record As",
                                                     .FileName = "*.Col",
                                                     .DefaultExtension = "Col",
                                                     .Filters = WoodColumnFilters,
                                                     .SelectedFilter = 2};

inline constexpr std::string_view SteelColumnFilters = "All Files (*.*)|*.*|Kordavan Files (*.SCo)|*.SCo|";

inline constexpr FileDialogText OpenSteelColumnDialog{.Title = "Open Steel Column Record",
                                                      .FileName = "*.SCo",
                                                      .DefaultExtension = {},
                                                      .Filters = SteelColumnFilters,
                                                      .SelectedFilter = 2};
inline constexpr FileDialogText SaveSteelColumnDialog{.Title = "Save Steel Column Record As",
                                                      .FileName = "*.SCo",
                                                      .DefaultExtension = "SCo",
                                                      .Filters = SteelColumnFilters,
                                                      .SelectedFilter = 2};

inline constexpr std::string_view StudColumnFilters = "All Files (*.*)|*.*|Kordavan Files (*.Wsc)|*.Wsc|";

inline constexpr FileDialogText OpenStudColumnDialog{.Title = "Open Stud Column Record",
                                                     .FileName = "*.Wsc",
                                                     .DefaultExtension = {},
                                                     .Filters = StudColumnFilters,
                                                     .SelectedFilter = 2};
inline constexpr FileDialogText SaveStudColumnDialog{.Title = "Save Stud Column Record As",
                                                     .FileName = "*.Wsc",
                                                     .DefaultExtension = "Wsc",
                                                     .Filters = StudColumnFilters,
                                                     .SelectedFilter = 2};

inline constexpr FileDialogText SavePdfDialog{.Title = "Save as PDF",
                                              .FileName = "*.pdf",
                                              .DefaultExtension = "pdf",
                                              .Filters = "All Files (*.*)|*.*|PDF Files (*.pdf)|*.pdf|",
                                              .SelectedFilter = 2};

inline constexpr FileDialogText SavePictureDialog{
    .Title = "Save Picture As",
    .FileName = "*.png",
    .DefaultExtension = "png",
    .Filters = "PNG Pictures (*.png)|*.png|SVG Drawings (*.svg)|*.svg|",
    .SelectedFilter = 1};

}  // namespace kordavan

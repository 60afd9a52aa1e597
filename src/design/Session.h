#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "analysis/AnalysisResult.h"
#include "analysis/StationTable.h"
#include "core/BeamNumbers.h"
#include "core/BeamProblem.h"
#include "core/NdsEdition.h"
#include "design/DataSheet.h"
#include "design/DefaultSettings.h"
#include "design/Member.h"
#include "design/MemberTestResult.h"
#include "design/SelectionRecord.h"
#include "design/SteelState.h"

namespace kordavan {

/// What the entries were before a calculation changed them.
struct EntriesToRestore {
    bool LoadsMultipliedFlag = false;  // the boxes hold loads as adjusted
    std::string SavedUniform;
    PartialTexts SavedPartial;
    std::string SavedIncTL;
    std::string SavedIncUnifTL;
    bool HipLoadsGrown = false;  // the hips and valleys tool has grown IncTL and IncUnifTL
    std::string SavedUBLtext;    // of a steel beam
    std::string SavedCantUBLtext;
};

/// Live loads taken out of the entries for a moment, and where they belong.
struct UnbalancedLoads {
    bool Overhang = false;  // the overhang's live loads are out
    bool Span = false;      // the span's live loads are out
    std::string SavedLiveUniform;
    PointTexts SavedLivePoint;
    PartialTexts SavedLivePartial;
};

/// What a print-out is headed with.
struct PrintHeader {
    std::string Heading1;
    std::string Heading2;
    std::string Initialbox;  // the designer's initials
};

/// One beam at work, from its entries to the member tested last.
struct Session {
    BeamProblem Problem;
    NdsEdition Nds = EditionFlags(Edition::Nds2018);

    EntriesToRestore Restore;
    UnbalancedLoads Unbalanced;
    float IncreasingTotalLoad = 0;  // of the hips and valleys tool, lb
    float IncreasingLiveLoad = 0;

    BeamNumbers Numbers;  // the entries as the last calculation read them
    AnalysisResult Analysis;
    StationTable Stations;

    bool SoPineLowered = false;  // left by the last test of a #2 Southern Pine
    MemberTest Member;
    SteelTestState Steel;  // the shape that Member is, where it is of steel
    SteelSelection SteelPicks;

    std::size_t DeflectionLimitsInHand = 2;  // place in the cycle of the adjusting button
    std::optional<LoadSet> Multiplied;       // the loads as the uniform calculator left them

    MemberEntry Entry;                         // the size boxes of the selection screen
    std::optional<SelectionRecord> Selection;  // withdrawn by every change of the entries
    ReportNoteLines NoteClipboard;
    RecordOnShow Record;
    PrintHeader Header;
    DefaultSettings Defaults;  // as last read or saved
    bool CenterForms = false;  // forms are centred as they come to the front
    bool RestoreDefaultPrinter = false;
    bool HighDPI = false;
    std::string PrintFont;

    BeamProblem KeptProblem;  // the entries as last saved, or as a new beam begins
};

}  // namespace kordavan

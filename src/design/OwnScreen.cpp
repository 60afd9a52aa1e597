#include "design/OwnScreen.h"

#include "design/OwnSelection.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

constexpr std::string_view TypeAnySize =
    "Type in any valid Kordavan breadth and depth in the format shown.  Select 'OK' to test it.";
constexpr std::string_view OtherDepths = "Other depths may be typed.";
constexpr std::string_view MixedGrades =
    "Error: Both So. Pine AND MEL/MSR machine grades have been selected.";

void DescribeProduct(const MemberEntry& entry, OwnScreen& screen)
{
    const SclProduct& product = SclProducts()[entry.Product];
    const bool isOwn = IsCustomScl(entry.Product);
    screen.Title = " Kordavan SCL Form 2";
    screen.IsComposite = true;
    screen.LVLname = product.LVLname;
    screen.boisenote = product.boisenote;
    screen.HasName = isOwn;
    screen.NameCaption = "&Manufacturer, name and grade";
    screen.HasExponent = isOwn;
    screen.Label20 = isOwn ? TypeAnySize : std::string_view{};
}

void DescribeCustom(const CustomEntry& custom, OwnScreen& screen)
{
    const bool isMachineGraded = custom.MSRCheckbox || custom.MELCheckbox;
    screen.Title = " Kordavan Custom Values Form 2";
    screen.HasName = true;
    screen.NameCaption = "Species a&nd grade";
    screen.IsRound = custom.Roundoption;
    screen.HasLaminations = custom.WidGLB && !custom.Roundoption;
    screen.GradeWarning = custom.CustomIngradeSP && isMachineGraded ? MixedGrades : std::string_view{};
}

}  // namespace

OwnScreen DescribeOwnScreen(const Session& session)
{
    OwnScreen screen;
    if (session.Numbers.Group == SpeciesGroup::Scl) {
        DescribeProduct(session.Entry, screen);
    } else {
        DescribeCustom(session.Entry.Custom, screen);
    }
    screen.Moresizes = SuggestDepths(session).size() > SuggestedDepthCount ? OtherDepths : std::string_view{};
    screen.DurationText = "Load duration factor in force: " + session.Problem.Dur;
    return screen;
}

}  // namespace kordavan

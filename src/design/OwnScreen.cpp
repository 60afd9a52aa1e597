#include "design/OwnScreen.h"

#include "design/OwnSelection.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

constexpr std::string_view TypeAnySize =
    "Type in any valid Kordavan breadth and depth in the format shown.  Select 'OK' to test it.";
constexpr std::string_view OtherSizes = "Other breadths and depths of this product may be typed.";
constexpr std::string_view TimberSizes = "Timbers may be typed by half inches: 6-1/2x, 9-1/2.";
constexpr std::string_view Vestige =
    "This selection is a vestige of the discontinued BC Versa-Lam Plus. Please select BC Versa-Lam for all "
    "available widths.";
constexpr std::size_t VestigeProduct = 1;
constexpr std::string_view MixedGrades =
    "Error: Both So. Pine AND MEL/MSR machine grades have been selected.";

void DescribeProduct(const MemberEntry& entry, OwnScreen& screen)
{
    const SclProduct& product = SclProducts()[entry.Product];
    const bool isOwn = IsCustomScl(entry.Product);
    screen.Title = " Kordavan SCL Form 2";
    screen.IsComposite = true;
    screen.LVLname = product.LVLname;
    screen.boisenote = entry.Product == VestigeProduct ? Vestige : std::string_view{};
    screen.HasName = isOwn;
    screen.NameCaption = "&Manufacturer, name and grade";
    screen.HasExponent = isOwn;
    screen.SizeHint = isOwn ? TypeAnySize : OtherSizes;
}

void DescribeCustom(const CustomEntry& custom, OwnScreen& screen)
{
    const bool isMachineGraded = custom.MSRCheckbox || custom.MELCheckbox;
    screen.Title = " Kordavan Custom Values Form 2";
    screen.HasName = true;
    screen.NameCaption = "Species a&nd grade";
    screen.IsRound = custom.Roundoption;
    screen.HasLaminations = custom.WidGLB && !custom.Roundoption;
    screen.SizeHint = custom.Wid6x && !custom.Roundoption ? TimberSizes : std::string_view{};
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
    screen.HasPicks = !OwnPickBreadths(session.Entry, session.Numbers.Group).empty();
    screen.DurationText = "Load duration factor in force: " + session.Problem.Dur;
    return screen;
}

}  // namespace kordavan

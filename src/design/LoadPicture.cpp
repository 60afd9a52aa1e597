#include "design/LoadPicture.h"

#include <algorithm>

#include "core/NumberText.h"

namespace kordavan {

namespace {

/// The load of a hip or valley beside the numbers of its beam.
struct RoofLoad {
    PictureLoadKind Kind;
    double Total;
    double Live;
};

class PictureReader {
public:
    PictureReader(const BeamNumbers& theBeam, const RoofLoad& roofLoad) : beam(theBeam), roof(roofLoad)
    {
        picture.Support = beam.Support;
        picture.SpanCount = beam.SpanCount();
        picture.Span = beam.Span;
        picture.Overhang = beam.Overhang;
    }

    LoadPicture Read()
    {
        switch (beam.Support) {
            case SupportCondition::HipValley:
                AddRoof();
                break;
            case SupportCondition::MultipleSpans:
                AddUniform();
                break;
            case SupportCondition::SimpleSpan:
            case SupportCondition::Overhanging:
                AddUniform();
                AddPoints();
                AddPartials();
                break;
        }
        return picture;
    }

private:
    bool IsOnOverhang(std::size_t slot, std::size_t first) const
    {
        return beam.IsOverhanging() && slot >= first;
    }

    void AddUniform() { AddOverSpan(PictureLoadKind::Uniform, beam.Loads.UNIF, beam.Loads.LUNIF); }

    void AddRoof()
    {
        AddOverSpan(PictureLoadKind::Beside, beam.Loads.IncUnifTL, beam.Loads.IncUnifLL);
        AddOverSpan(roof.Kind, roof.Total, roof.Live);
        picture.Equivalent = beam.Loads.UNIF;
    }

    void AddOverSpan(PictureLoadKind kind, double total, double live)
    {
        if (std::max(total, live) > 0) {
            picture.Loads.push_back({.Kind = kind,
                                     .Letter = 'A',
                                     .Begin = 0,
                                     .End = picture.SpanCount * beam.Span,
                                     .Total = std::max(total, live),
                                     .Live = live});
        }
    }

    void AddPoints()
    {
        for (std::size_t k = 0; k < PointSlotCount; ++k) {
            const double total = std::max(beam.Loads.PT[k], beam.Loads.LPT[k]);
            if (total <= 0) {
                continue;
            }
            const bool onOverhang = IsOnOverhang(k, FirstOverhangPoint);
            const double place = beam.Loads.DIS[k];
            picture.Loads.push_back({.Kind = PictureLoadKind::Point,
                                     .Letter = PointLetter(k),
                                     .Slot = k,
                                     .Begin = onOverhang ? beam.Span + place : place,
                                     .End = onOverhang ? beam.Span + place : place,
                                     .Total = total,
                                     .Live = beam.Loads.LPT[k],
                                     .HasPlace = place > 0 && (onOverhang || place <= beam.Span),
                                     .OnOverhang = onOverhang});
        }
    }

    void AddPartials()
    {
        for (std::size_t k = 0; k < PartialSlotCount; ++k) {
            const double total = std::max(beam.Loads.PAR[k], beam.Loads.LPAR[k]);
            if (total <= 0) {
                continue;
            }
            const bool onOverhang = IsOnOverhang(k, FirstOverhangPartial);
            const double from = onOverhang ? beam.Span : 0;
            const double end = beam.Loads.ENDP[k];
            picture.Loads.push_back({.Kind = PictureLoadKind::Partial,
                                     .Letter = PartialLetter(k),
                                     .Slot = k,
                                     .Begin = from + beam.Loads.BEGP[k],
                                     .End = from + end,
                                     .Total = total,
                                     .Live = beam.Loads.LPAR[k],
                                     .HasPlace = end > beam.Loads.BEGP[k] && (onOverhang || end <= beam.Span),
                                     .OnOverhang = onOverhang});
        }
    }

    const BeamNumbers& beam;
    const RoofLoad& roof;
    LoadPicture picture;
};

std::string UnbalancedLine(const UnbalancedLoads& unbalanced)
{
    if (unbalanced.Overhang) {
        return "Live loads of the overhang are out";
    }
    return unbalanced.Span ? "Live loads of the backspan are out" : std::string{};
}

std::string PlaceText(double feet)
{
    return FormatNumber(feet, "#0.0#") + " ft";
}

std::string DescribeSupport(const LoadPicture& picture)
{
    if (picture.Span <= 0) {
        return "No span yet.";
    }
    switch (picture.Support) {
        case SupportCondition::SimpleSpan:
            return "Simple span of " + PlaceText(picture.Span) + ".";
        case SupportCondition::Overhanging:
            return "Span of " + PlaceText(picture.Span) + " with an overhang of " +
                   PlaceText(picture.Overhang) + ".";
        case SupportCondition::HipValley:
            return "Hip or valley of " + PlaceText(picture.Span) + ", the load rising from R1 to R2.";
        case SupportCondition::MultipleSpans:
            return (picture.SpanCount == 3 ? "Three" : "Two") + std::string(" equal spans of ") +
                   PlaceText(picture.Span) + ".";
    }
    return {};
}

std::string NameOf(const PictureLoad& load)
{
    switch (load.Kind) {
        case PictureLoadKind::Rising:
            return "Roof load";
        case PictureLoadKind::RisingLine:
            return "Rising load";
        case PictureLoadKind::Beside:
            return "Uniform load beside it";
        case PictureLoadKind::Uniform:
        case PictureLoadKind::Point:
        case PictureLoadKind::Partial:
            break;
    }
    return "Load " + std::string(1, load.Letter);
}

std::string_view UnitOf(PictureLoadKind kind)
{
    switch (kind) {
        case PictureLoadKind::Point:
            return " lb";
        case PictureLoadKind::Rising:
            return " psf";
        case PictureLoadKind::Uniform:
        case PictureLoadKind::Partial:
        case PictureLoadKind::RisingLine:
        case PictureLoadKind::Beside:
            break;
    }
    return " plf";
}

std::string DescribePlace(const PictureLoad& load)
{
    if (load.Kind == PictureLoadKind::Rising) {
        return ", rising from R1 to R2";
    }
    if (load.Kind == PictureLoadKind::RisingLine) {
        return " at R2, rising from nothing at R1";
    }
    if (load.Kind == PictureLoadKind::Uniform || load.Kind == PictureLoadKind::Beside) {
        return " over the whole span";
    }
    if (!load.HasPlace) {
        return ", its place is not entered";
    }
    const std::string place = load.Kind == PictureLoadKind::Point
                                  ? " at " + PlaceText(load.Begin)
                                  : " from " + PlaceText(load.Begin) + " to " + PlaceText(load.End);
    return place + (load.OnOverhang ? ", on the overhang" : "");
}

}  // namespace

LoadPicture ReadLoadPicture(const Session& session)
{
    const LoadSet& loads = session.Problem.Loads;
    const RoofLoad roof{PictureLoadKind::Rising, Val(loads.IncTL), Val(loads.IncLL)};
    LoadPicture picture = PictureReader(ReadBeamNumbers(session.Problem), roof).Read();
    picture.UnbalancedLine = UnbalancedLine(session.Unbalanced);
    return picture;
}

LoadPicture PictureOfCalculated(const BeamNumbers& beam)
{
    const double perPound = 2 / beam.Span;  // of the whole load, at R2
    const RoofLoad roof{PictureLoadKind::RisingLine, perPound * beam.IncreasingTotalLoad,
                        perPound * beam.IncreasingLiveLoad};
    return PictureReader(beam, roof).Read();
}

std::string DescribePicture(const LoadPicture& picture)
{
    std::string text = DescribeSupport(picture);
    for (const PictureLoad& load : picture.Loads) {
        text += " " + NameOf(load) + ": " + PlainNumber(Single(load.Total));
        text += UnitOf(load.Kind);
        text += ", live " + PlainNumber(Single(load.Live)) + DescribePlace(load) + ".";
    }
    if (picture.Equivalent > 0) {
        text += " Equivalent uniform load: " + PlainNumber(Single(picture.Equivalent)) + " plf.";
    }
    if (!picture.UnbalancedLine.empty()) {
        text += " " + picture.UnbalancedLine + ".";
    }
    return text;
}

char PointLetter(std::size_t slot)
{
    return static_cast<char>('B' + slot);
}

char PartialLetter(std::size_t slot)
{
    return static_cast<char>('H' + slot);
}

}  // namespace kordavan

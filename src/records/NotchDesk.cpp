#include "records/NotchDesk.h"

#include "records/SheetHeading.h"

namespace kordavan {

namespace {

/// Without its date, so that a heading that was entered outlives the day.
RecordHeading UsualHeading(const Session& beam)
{
    return {.Project = beam.Problem.Proj,
            .Description = beam.Problem.Descrip,
            .BeamId = beam.Problem.ID,
            .Heading1 = beam.Header.Heading1,
            .Heading2 = beam.Header.Heading2,
            .Initials = beam.Header.Initialbox};
}

}  // namespace

void PrepareNotchHeading(NotchSession& notch, const Session& beam, CalendarDay today)
{
    const RecordHeading usual = UsualHeading(beam);
    const bool isEntered = notch.HeaderChanged && notch.HeaderChanged->Usual == usual;
    notch.Heading = isEntered ? notch.HeaderChanged->Heading : usual;
    DateHeading(notch.Heading, today);
}

void TakeNotchHeading(NotchSession& notch, const Session& beam, CalendarDay today)
{
    DateHeading(notch.Heading, today);
    notch.HeaderChanged = EnteredNotchHeading{.Usual = UsualHeading(beam), .Heading = notch.Heading};
}

RecordHeading DatedNotchHeading(const NotchSession& notch, CalendarDay today)
{
    RecordHeading heading = notch.Heading;
    DateHeading(heading, today);
    return heading;
}

}  // namespace kordavan

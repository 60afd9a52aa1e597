#include "notch/NotchEdits.h"

#include "notch/NotchCheck.h"

namespace kordavan {

namespace {

bool HasFvOfTables(const NotchEntry& entry, const NotchYears& years)
{
    NotchEntry picked = entry;
    PickNotchSpecies(picked, entry.Species, EditionOfNotch(years));
    return picked.Fvtextbox == entry.Fvtextbox;
}

}  // namespace

Edition EditionOfNotch(const NotchYears& years)
{
    return EditionOfYear(std::to_string(years.NdsYear));
}

void FollowEdition(NotchSession& notch, Edition inForce)
{
    if (notch.YearsOf != inForce) {
        notch.Years = OpeningNotchYears(inForce);
        notch.YearsOf = inForce;
    }
}

void FollowNotchEdit(NotchSession& notch, const NotchEntry& before, const NotchYears& yearsBefore)
{
    NotchEntry& entry = notch.Entry;
    const bool isSameValue = entry.Species == before.Species && entry.Fvtextbox == before.Fvtextbox;
    if (isSameValue && HasFvOfTables(before, yearsBefore)) {
        PickNotchSpecies(entry, before.Species, EditionOfNotch(notch.Years));
    }
    const int tapered = static_cast<int>(NotchType::Tapered);
    if (entry.NotchListBox == tapered && before.NotchListBox != tapered) {
        entry.eTextbox.clear();
    }
}

}  // namespace kordavan

#include "forms/StudGroup.h"

#include <QGridLayout>

#include "forms/StudAxialGroup.h"
#include "forms/StudSizeGroup.h"
#include "forms/StudSketch.h"
#include "forms/StudWindGroup.h"

namespace kordavan {

StudGroup::StudGroup(const GroupContext& context, ColumnSession& currentColumns)
    : EntryGroup(context, "WindFrame", "Combined Axial and Wind Loaded Studs"),
      columns(currentColumns),
      size(new StudSizeGroup(context, columns.Stud)),
      sketch(new StudSketch)
{
    auto* const axial = new StudAxialGroup(context, columns.Stud);
    auto* const wind = new StudWindGroup(context, columns.Stud);
    connect(size, &StudSizeGroup::Changed, this, &StudGroup::Changed);
    connect(axial, &StudAxialGroup::Changed, this, &StudGroup::Changed);
    connect(wind, &StudWindGroup::SaveAsked, this, &StudGroup::SaveAsked);
    connect(wind, &StudWindGroup::LoadAsked, this, &StudGroup::LoadAsked);
    Grid().addWidget(size, 0, 0);
    Grid().addWidget(axial, 0, 1);
    Grid().addWidget(wind, 0, 2);
    Grid().addWidget(sketch, 1, 0, 1, 3);
    Grid().setColumnStretch(0, 1);
    Grid().setColumnStretch(1, 1);
    Grid().setColumnStretch(2, 1);
    Grid().setRowStretch(1, 1);
}

void StudGroup::ShowEntries()
{
    size->ShowEntries();
    sketch->ShowPicture(ReadStudPicture(columns.Stud));
}

}  // namespace kordavan

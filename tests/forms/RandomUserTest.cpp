#include "forms/RandomUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "forms/WalkFixture.h"
#include "records/ColumnRecordFile.h"
#include "records/CriteriaFile.h"
#include "records/CustomPostFile.h"
#include "records/CustomValuesFile.h"
#include "records/DataRecordFile.h"
#include "records/StudRecordFile.h"

namespace kordavan {
namespace {

constexpr CalendarDay SomeDay{.Year = 2026, .Month = 3, .Day = 7};

struct SavedBeam {
    std::string Name;
    BeamProblem Problem;
};

std::vector<SavedBeam> SavedBeams()
{
    BeamProblem joist;
    joist.Span = "13.5";
    joist.Loads.UNIF = "52";
    joist.Loads.LUNIF = "40";
    joist.Rep = true;
    joist.Spacing = RepetitiveSpacing::Ctr16;
    BeamProblem deck;
    deck.Support = SupportCondition::Overhanging;
    deck.Span = "8";
    deck.Loads.UNIF = "220";
    deck.Loads.LUNIF = "160";
    deck.Loads.PAR[FirstOverhangPartial] = "220";
    deck.Loads.BEGP[FirstOverhangPartial] = "0";
    deck.Loads.ENDP[FirstOverhangPartial] = "3";
    BeamProblem hip;
    hip.Support = SupportCondition::HipValley;
    hip.Span = "14.14";
    hip.Loads.IncTL = "40";
    hip.Loads.IncLL = "25";
    hip.Loads.Trib1 = hip.Loads.Trib2 = "10";
    hip.Loads.UNIF = "140";
    BeamProblem girder;
    girder.Support = SupportCondition::MultipleSpans;
    girder.Span = "9";
    girder.Loads.UNIF = "416";
    BeamProblem steel = joist;
    steel.Rep = false;
    steel.Spacing = RepetitiveSpacing::None;
    steel.Loads.UNIF = "500";
    steel.Combo1 = SpeciesGroup::Steel;
    BeamProblem own = deck;
    own.Combo1 = SpeciesGroup::Custom;
    BeamProblem composite = girder;
    composite.Combo1 = SpeciesGroup::Scl;
    return {{"joist", joist}, {"deck", deck}, {"hip", hip},      {"girder", girder},
            {"steel", steel}, {"own", own},   {"scl", composite}};
}

void PutBytes(const QDir& folder, const QString& name, const QByteArray& bytes)
{
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// Good files of every kind, and beside them cut and foreign ones under the same extensions.
void FillFolder(const QDir& folder)
{
    ScriptedUser user;
    const auto path = [&folder](const std::string& name) { return Text(folder.filePath(Text(name))); };
    for (const SavedBeam& beam : SavedBeams()) {
        Session session;
        session.Problem = beam.Problem;
        ASSERT_EQ(SaveCriteriaFile(session, path(beam.Name + ".CRI"), SomeDay, user), Outcome::Done);
    }
    DataSheet sheet;
    sheet[13] = "38.92";
    ASSERT_EQ(SaveDataRecord(sheet, {.Project = "Shed"}, path("shed.Dat"), user), Outcome::Done);
    ColumnSheet column;
    column[1] = "Porch";
    ASSERT_EQ(SaveColumnRecord(column, ColumnRecordKind::Wood, true, path("post.Col"), user), Outcome::Done);
    ASSERT_EQ(SaveColumnRecord(column, ColumnRecordKind::Steel, true, path("pipe.SCo"), user), Outcome::Done);
    ColumnSession studs;
    studs.Stud.WindStudHt = "10";
    studs.Stud.WindStudSpacing = "16";
    studs.Stud.WindStudCombo = "DF-L #2";
    studs.Stud.WindStudFb = "900";
    studs.Stud.WindStudFc = "1350";
    studs.Stud.WindStudE = "1.6";
    studs.Stud.AxialPLFtextbox = "900";
    studs.Stud.Wind[0] = "22";
    studs.Stud.Beg[0] = "0";
    studs.Stud.End[0] = "10";
    ASSERT_EQ(SaveStudRecord(studs, {"note"}, path("wall.Wsc"), user), Outcome::Done);
    ColumnEntry post;
    post.ColSpeciesCombo = "Hackberry";
    post.cFcText = "1450";
    post.cEtext = "1.75";
    ASSERT_EQ(SaveCustomPost(post, path("hackberry.CPV"), user), Outcome::Done);
    Session own;
    own.Problem.Combo1 = SpeciesGroup::Custom;
    own.Entry.SpeciesText = "Larch";
    own.Entry.Custom.Fb = "1200";
    own.Entry.Custom.Fv = "180";
    own.Entry.Custom.FcPerp = "625";
    own.Entry.Custom.E = "1.6";
    own.Entry.Custom.Wid4x = true;
    ASSERT_EQ(SaveCustomValues(own, path("larch.Val"), user), Outcome::Done);

    for (const QFileInfo& good : folder.entryInfoList(QDir::Files, QDir::Name)) {
        QFile file(good.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        PutBytes(folder, QStringLiteral("cut ") + good.fileName(), bytes.left(bytes.size() / 3));
        PutBytes(folder, QStringLiteral("foreign.") + good.suffix(), "These are notes, not a record.\n");
        PutBytes(folder, QStringLiteral("noise.") + good.suffix(), bytes.left(2) + QByteArray(5000, '\xE7'));
    }
    folder.mkdir(QStringLiteral("folder.CRI"));
}

/// What the toolkit complains about; what the platform without a screen cannot do is none of ours.
QStringList& Complaints()
{
    static QStringList complaints;
    return complaints;
}

void HearComplaint(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const bool isOfPlatform = text.startsWith(QLatin1String("This plugin does not support"));
    if (type != QtDebugMsg && type != QtInfoMsg && !isOfPlatform) {
        Complaints().append(text);
    }
}

/// The names of all forms there are.
std::set<std::string> AllForms()
{
    Session session;
    ColumnSession columns;
    NotchSession notch;
    ScriptedUser user;
    ScriptedDesktop desktop;
    Walk walk(session, columns, notch, user, desktop);
    std::set<std::string> names;
    for (int screen = 0; screen <= static_cast<int>(Screen::Guide); ++screen) {
        names.insert(Text(walk.FormOf(static_cast<Screen>(screen)).objectName()));
    }
    return names;
}

TEST(RandomUser, BringsNothingToAFallAndComesByEveryForm)
{
    constexpr int steps = 400;
    constexpr unsigned fewest = 3;
    constexpr unsigned most = 10;
    const int chosen = GTEST_FLAG_GET(random_seed);
    const unsigned first = chosen == 0 ? 1 : static_cast<unsigned>(chosen);
    const std::set<std::string> all = AllForms();
    std::set<std::string> seen;
    const QtMessageHandler before = qInstallMessageHandler(HearComplaint);
    for (unsigned k = 0; k < fewest || (k < most && seen != all); ++k) {
        SCOPED_TRACE("random user " + std::to_string(first + k));
        const QTemporaryDir folder;
        FillFolder(QDir(folder.path()));
        RandomUser user(first + k, folder.path(), chosen != 0);
        user.TakeSteps(steps);
        EXPECT_EQ(Complaints(), QStringList()) << user.LastActions();
        Complaints().clear();
        user.Leave();
        EXPECT_EQ(QApplication::topLevelWidgets().size(), 0) << user.LastActions();
        seen.insert(user.Seen().begin(), user.Seen().end());
    }
    qInstallMessageHandler(before);
    EXPECT_EQ(seen, all);
}

}  // namespace
}  // namespace kordavan

#include "Views/Components/DesktopWords.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <memory>

namespace {

struct Word {
    QString DesktopWords::Words::*member;
    const char* mac;  // the text the Mac has always shown
};

const Word words[] = {
    {&DesktopWords::Words::fileManager, "Finder"},
    {&DesktopWords::Words::revealInFileManager, "Reveal in Finder"},
    {&DesktopWords::Words::revealProjectInFileManager, "Reveal project in Finder"},
    {&DesktopWords::Words::openStartupSettings, "Open Login Items…"},
    {&DesktopWords::Words::openFolderHint, "Double-tap to open"},
    {&DesktopWords::Words::howDoYouUseThisComputer, "How do you use this Mac?"},
    {&DesktopWords::Words::welcomeSubtitle,
     "Free up space from caches and junk you don't need — cleaned safely, right from your menu bar."},
    {&DesktopWords::Words::openFromStatusIcon, "Open Mopwell from the menu bar any time to clean up or explore the Disk Map."},
    {&DesktopWords::Words::clickTheStatusIcon,
     "Click the drive icon in your menu bar any time to free up space or open the Disk Map."},
    {&DesktopWords::Words::statusIconShows, "Menu bar shows"},
    {&DesktopWords::Words::statusIconShowsNoText, "Icon only"},
    {&DesktopWords::Words::everydayCachesInOneGo, "Everyday caches, one tap."},
    {&DesktopWords::Words::developerToolsExamples, "Also Xcode, npm, Docker & node_modules."},
    {&DesktopWords::Words::developerModeReveals,
     "Reveals Xcode, npm, Docker and other dev caches, plus node_modules and build folders in your projects."},
};

}  // namespace

TEST(DesktopWords, TheMacKeepsItsTextsAndLinuxSaysItsOwn)
{
    static const QRegularExpression macOnly(
        QStringLiteral(R"(\b(Finder|Login Items|macOS|Mac|menu bar|Dock|Library|Xcode|tap)\b)"),
        QRegularExpression::CaseInsensitiveOption);
    const auto mac = DesktopWords::forProfile(PlatformProfile::macOS);
    const auto onLinux = DesktopWords::forProfile(PlatformProfile::linuxDesktop);
    for (const auto& word : words) {
        EXPECT_EQ(mac.*word.member, QString::fromUtf8(word.mac));
        EXPECT_FALSE((onLinux.*word.member).isEmpty()) << word.mac;
        EXPECT_NE(onLinux.*word.member, mac.*word.member) << word.mac;
        EXPECT_FALSE((onLinux.*word.member).contains(macOnly)) << word.mac;
    }
    EXPECT_EQ(onLinux.revealInFileManager, "Show in File Manager");
}

TEST(DesktopWords, ViewsReadTheWordsOfThisBuildsDesktop)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQml
        import Mopwell
        QtObject {
            property string reveal: DesktopWords.revealInFileManager
            property string hint: DesktopWords.openFolderHint
        })",
                      QUrl());
    const std::unique_ptr<QObject> view(component.create());
    ASSERT_TRUE(view) << component.errorString().toStdString();
    const auto expected = DesktopWords::forProfile(currentPlatformProfile());
    EXPECT_EQ(view->property("reveal").toString(), expected.revealInFileManager);
    EXPECT_EQ(view->property("hint").toString(), expected.openFolderHint);
}

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

// The shipped languages are complete: every text the sources pass through translation has a
// finished translation in every .ts file, and no text shown in QML escapes translation.
// scripts/update-translations brings the .ts files in step and lists what is missing.

namespace {

const QString sourceFolder = QStringLiteral(MOPWELL_SOURCE_DIR);
const QString translationsFolder = QStringLiteral(MOPWELL_TRANSLATIONS_DIR);

struct Unfinished {
    QString context;
    QString source;
};

// The messages of a .ts file that have no finished translation.
std::vector<Unfinished> unfinishedIn(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    std::vector<Unfinished> found;
    QString context, source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (name == QLatin1String("translation")) {
            const bool unfinished = xml.attributes().value(QLatin1String("type")) == QLatin1String("unfinished");
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (unfinished || text.trimmed().isEmpty())
                found.push_back({context, source});
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return found;
}

}  // namespace

TEST(Translations, EveryMessageIsTranslated)
{
    const QStringList files = QDir(translationsFolder).entryList({QStringLiteral("mopwell_*.ts")}, QDir::Files);
    ASSERT_EQ(files, (QStringList{"mopwell_de.ts", "mopwell_fr.ts"}));
    // Brought in step with today's sources in a copy, so a text added since the last update
    // counts as unfinished too.
    QTemporaryDir work;
    QStringList copies;
    for (const QString& file : files) {
        copies << work.filePath(file);
        ASSERT_TRUE(QFile::copy(translationsFolder + "/" + file, copies.back()));
    }
    QProcess lupdate;
    lupdate.start(QStringLiteral(MOPWELL_LUPDATE),
                  QStringList{"-silent", "-locations", "none", "-no-obsolete", sourceFolder, "-ts"} + copies);
    ASSERT_TRUE(lupdate.waitForFinished(120'000));
    ASSERT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();

    for (const QString& copy : copies) {
        const auto unfinished = unfinishedIn(copy);
        std::string listed;
        for (const auto& [context, source] : unfinished)
            listed += "\n  " + context.toStdString() + ": " + source.toStdString();
        EXPECT_TRUE(unfinished.empty()) << unfinished.size() << " unfinished in " << QFileInfo(copy).fileName().toStdString()
                                        << " (scripts/update-translations lists them):" << listed;
    }
}

namespace {

// A binding's expression: the rest of the line up to the first ";", "}" or "//" outside quotes.
QString expressionOf(const QString& rest)
{
    bool inQuotes = false;
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QChar c = rest[i];
        if (inQuotes) {
            if (c == QLatin1Char('\\'))
                ++i;
            else if (c == QLatin1Char('"'))
                inQuotes = false;
        } else if (c == QLatin1Char('"')) {
            inQuotes = true;
        } else if (c == QLatin1Char(';') || c == QLatin1Char('}') || rest.mid(i, 2) == QLatin1String("//")) {
            return rest.left(i);
        }
    }
    return rest;
}

// The quoted texts of a binding a reader would see: not the argument of qsTr(), nor a context
// of qsTranslate(), nor one side of a comparison, nor markup or the product's name.
QStringList shownLiterals(const QString& expression)
{
    static const QRegularExpression quoted(QStringLiteral(R"re("((?:[^"\\]|\\.)*)")re"));
    static const QRegularExpression comparedBefore(QStringLiteral(R"re([=!]=\s*$)re"));
    static const QRegularExpression comparedAfter(QStringLiteral(R"re(^\s*[=!]=)re"));
    static const QRegularExpression markup(QStringLiteral("<[^>]*>?"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2,}"));
    QStringList found;
    for (auto literal = quoted.globalMatch(expression); literal.hasNext();) {
        const auto match = literal.next();
        const QString before = expression.left(match.capturedStart()).trimmed();
        if (before.endsWith(QLatin1String("qsTr(")) || before.endsWith(QLatin1String("qsTranslate(")) ||
            comparedBefore.match(before).hasMatch() || comparedAfter.match(expression.mid(match.capturedEnd())).hasMatch())
            continue;
        QString text = match.captured(1);
        text.remove(markup);
        if (text != QLatin1String("Mopwell") && word.match(text).hasMatch())
            found << text;
    }
    return found;
}

}  // namespace

// What the run over the sources below can't show by failing: that the check still finds a text,
// and that it doesn't read a comment. A text it reports wrongly fails that run on its own.
TEST(Translations, FindsTextsThatEscapeTranslation)
{
    const struct {
        const char* expression;
        QStringList shown;
    } cases[] = {
        {R"(done ? qsTr("Done") : "Working")", {"Working"}},
        {R"("Show all"; symbol: "gearshape")", {"Show all"}},
        {R"(qsTr("%1 GB").arg(v) // "GB" is translated with it)", {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(shownLiterals(expressionOf(QString::fromUtf8(c.expression))), c.shown) << c.expression;
}

TEST(Translations, TextsShownInQmlPassThroughTranslation)
{
    // A property that shows words to the reader or to a screen reader.
    static const QRegularExpression shown(QStringLiteral(
        R"(\b(text|title|label|placeholderText|ToolTip\.text|Accessible\.name|Accessible\.description|emptyText|footer|caption|subtitle)\s*:\s*(.*)$)"));
    std::vector<std::string> untranslated;
    QDirIterator files(sourceFolder, {"*.qml"}, QDir::Files, QDirIterator::Subdirectories);
    int lines = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        int number = 0;
        for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
            ++number;
            ++lines;
            const auto binding = shown.match(line);
            if (line.trimmed().startsWith(QLatin1String("//")) || !binding.hasMatch())
                continue;
            for (const QString& text : shownLiterals(expressionOf(binding.captured(2))))
                untranslated.push_back(QDir(sourceFolder).relativeFilePath(file.fileName()).toStdString() + ":" +
                                       std::to_string(number) + ": \"" + text.toStdString() + "\"");
        }
    }
    EXPECT_GT(lines, 1000);
    for (const std::string& where : untranslated)
        ADD_FAILURE() << "shown without qsTr(): " << where;
}

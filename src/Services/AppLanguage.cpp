#include "Services/AppLanguage.h"

#include "Platform/ByteCountFormatter.h"
#include "Platform/DefaultsStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>

namespace AppLanguage {
namespace {

constexpr char translationsFolder[] = ":/i18n";
constexpr char english[] = "en";

// "de", "pt_BR" and the like: a language and maybe a region, nothing that could name a file.
bool isLanguageCode(const QString& code)
{
    static const QRegularExpression pattern(QStringLiteral("^[a-z]{2,3}([_-][A-Za-z0-9]{2,4})?$"));
    return pattern.match(code).hasMatch();
}

// The bare language of a code as the desktop writes it ("de-AT" and "de_AT" give "de").
QString languageOf(const QString& code)
{
    return code.section(QRegularExpression(QStringLiteral("[_-]")), 0, 0).toLower();
}

// Not named translate(): the translation tools would take its calls for ones with a context.
QString translated(const char* text)
{
    return QCoreApplication::translate("ByteCountFormatter", text);
}

// The words of sizes in the language now installed, with that language's marks for numbers.
void applySizeWording(const QLocale& locale)
{
    ByteCountFormatter::Wording wording;
    wording.zero = translated(QT_TRANSLATE_NOOP("ByteCountFormatter", "Zero KB")).toStdString();
    wording.oneByte = translated(QT_TRANSLATE_NOOP("ByteCountFormatter", "1 byte")).toStdString();
    wording.bytes = translated(QT_TRANSLATE_NOOP("ByteCountFormatter", "%1 bytes")).toStdString();
    wording.decimalSeparator = locale.decimalPoint().toStdString();
    wording.groupSeparator = locale.groupSeparator().toStdString();
    const char* units[] = {QT_TRANSLATE_NOOP("ByteCountFormatter", "KB"), QT_TRANSLATE_NOOP("ByteCountFormatter", "MB"),
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "GB"), QT_TRANSLATE_NOOP("ByteCountFormatter", "TB"),
                           QT_TRANSLATE_NOOP("ByteCountFormatter", "PB"), QT_TRANSLATE_NOOP("ByteCountFormatter", "EB")};
    for (std::size_t i = 0; i < wording.units.size(); ++i)
        wording.units[i] = translated(units[i]).toStdString();
    ByteCountFormatter::setWording(std::move(wording));
}

void installTranslator(const QString& name, const QString& folder, const QString& language)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name + QLatin1Char('_') + language, folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

}  // namespace

QStringList shipped()
{
    QStringList codes;
    const QStringList files = QDir(QString::fromLatin1(translationsFolder))
                                  .entryList({QStringLiteral("mopwell_*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        const QString code = file.mid(8, file.size() - 8 - 3);
        if (isLanguageCode(code))
            codes.append(code);
    }
    return codes;
}

QStringList available(const QStringList& translations)
{
    QStringList codes = translations;
    codes.removeAll(QString::fromLatin1(english));
    codes.removeDuplicates();
    std::sort(codes.begin(), codes.end());
    codes.prepend(QString::fromLatin1(english));
    return codes;
}

QString current(const DefaultsStore& store)
{
    const auto codes = store.stringArray(key);
    return codes && !codes->empty() ? QString::fromStdString(codes->front()) : QString();
}

bool set(DefaultsStore& store, const QString& code)
{
    if (code == current(store))
        return false;
    if (code.isEmpty())
        store.remove(key);
    else
        store.set(key, std::vector<std::string>{code.toStdString()});
    return true;
}

QString displayName(const QString& code)
{
    const QLocale locale(code);
    if (code.isEmpty() || locale.language() == QLocale::C || languageOf(locale.name()) != languageOf(code))
        return code;
    // The name of the language alone, not of one country's variant of it ("American English").
    const QString name = QLocale(locale.language(), QLocale::World).nativeLanguageName();
    if (name.isEmpty())
        return code;
    return locale.toUpper(name.left(1)) + name.mid(1);
}

QString resolved(const QString& stored, const QStringList& desktopLanguages, const QStringList& translations)
{
    const QStringList languages = available(translations);
    if (languages.contains(stored))
        return stored;
    for (const QString& wanted : desktopLanguages) {
        if (languages.contains(languageOf(wanted)))
            return languageOf(wanted);
    }
    return QString::fromLatin1(english);
}

void install(const DefaultsStore& store)
{
    const QString stored = current(store);
    const QString language = resolved(stored, QLocale::system().uiLanguages());
    // A language chosen here brings its own formats; the desktop's brings the desktop's region.
    const QLocale locale = language == stored ? QLocale(language) : QLocale::system();
    QLocale::setDefault(locale);
    if (language != QLatin1String(english)) {
        installTranslator(QStringLiteral("mopwell"), QString::fromLatin1(translationsFolder), language);
        // Qt's own words: the buttons of the standard dialogs, such as the folder chooser's.
        installTranslator(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath), language);
    }
    applySizeWording(locale);
}

void relaunch(const QString& program, const std::function<void()>& quit)
{
    QProcess::startDetached(program, {QString::fromLatin1(relaunchArgument)});
    QMetaObject::invokeMethod(QCoreApplication::instance(), quit, Qt::QueuedConnection);
}

void relaunch()
{
    relaunch(QCoreApplication::applicationFilePath(), [] { QCoreApplication::quit(); });
}

}  // namespace AppLanguage

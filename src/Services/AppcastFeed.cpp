#include "Services/AppcastFeed.h"

#include <QHostAddress>
#include <QXmlStreamReader>

#include <algorithm>
#include <charconv>

namespace AppcastFeed {
namespace {

constexpr QStringView sparkleNamespace = u"http://www.andymatuschak.org/xml-namespaces/sparkle";

// The item being read: what it says, before anything is checked.
struct RawItem {
    QString version;
    QString shortVersion;
    QString releaseNotes;
    QString enclosure;
    QString link;
};

bool isSparkle(const QXmlStreamReader& reader)
{
    return reader.namespaceUri() == sparkleNamespace || reader.qualifiedName().startsWith(u"sparkle:");
}

void readEnclosure(const QXmlStreamReader& reader, RawItem& item)
{
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        const bool sparkle = attribute.namespaceUri() == sparkleNamespace || attribute.qualifiedName().startsWith(u"sparkle:");
        if (attribute.name() == u"url" && !sparkle)
            item.enclosure = attribute.value().toString().trimmed();
        else if (sparkle && attribute.name() == u"version" && item.version.isEmpty())
            item.version = attribute.value().toString().trimmed();
        else if (sparkle && attribute.name() == u"shortVersionString" && item.shortVersion.isEmpty())
            item.shortVersion = attribute.value().toString().trimmed();
    }
}

// Reads one <item> up to its end tag.
RawItem readItem(QXmlStreamReader& reader)
{
    RawItem item;
    while (reader.readNextStartElement()) {
        const auto name = reader.name();
        if (name == u"enclosure") {
            readEnclosure(reader, item);
            reader.skipCurrentElement();
        } else if (isSparkle(reader) && name == u"version") {
            item.version = reader.readElementText().trimmed();
        } else if (isSparkle(reader) && name == u"shortVersionString") {
            item.shortVersion = reader.readElementText().trimmed();
        } else if (isSparkle(reader) && name == u"releaseNotesLink") {
            item.releaseNotes = reader.readElementText().trimmed();
        } else if (name == u"link" && !isSparkle(reader)) {
            item.link = reader.readElementText().trimmed();
        } else {
            reader.skipCurrentElement();
        }
    }
    return item;
}

std::optional<Item> checked(const RawItem& raw)
{
    const QString version = raw.version.isEmpty() ? raw.shortVersion : raw.version;
    if (!isWellFormedVersion(version.toStdString()))
        return std::nullopt;
    const QUrl download(raw.enclosure.isEmpty() ? raw.link : raw.enclosure, QUrl::StrictMode);
    if (!download.isValid() || !isTrustedAddress(download))
        return std::nullopt;
    QUrl notes(raw.releaseNotes, QUrl::StrictMode);
    if (!notes.isValid() || !isTrustedAddress(notes))
        notes = QUrl();
    return Item{version, raw.shortVersion.isEmpty() ? version : raw.shortVersion, notes, download};
}

// The next number of a well-formed version, taking it off the front; 0 once it is used up.
unsigned long long nextNumber(std::string_view& version)
{
    if (version.empty())
        return 0;
    unsigned long long number = 0;
    if (std::from_chars(version.data(), version.data() + version.size(), number).ec != std::errc())
        number = ~0ULL;  // longer than any release will number itself
    const auto used = static_cast<std::size_t>(std::find(version.begin(), version.end(), '.') - version.begin());
    version.remove_prefix(std::min(version.size(), used + 1));
    return number;
}

}  // namespace

std::optional<std::vector<Item>> parse(const QByteArray& text)
{
    QXmlStreamReader reader(text);
    if (!reader.readNextStartElement() || reader.name() != u"rss")
        return std::nullopt;
    std::vector<Item> items;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == u"item") {
            if (const auto item = checked(readItem(reader)))
                items.push_back(*item);
        }
    }
    if (reader.hasError())
        return std::nullopt;
    return items;
}

std::optional<Item> newest(const std::vector<Item>& items)
{
    const auto found = std::max_element(items.begin(), items.end(), [](const Item& a, const Item& b) {
        return compareVersions(a.version.toStdString(), b.version.toStdString()) < 0;
    });
    if (found == items.end())
        return std::nullopt;
    return *found;
}

bool isWellFormedVersion(std::string_view version)
{
    bool expectDigit = true;
    for (const char c : version) {
        if (c >= '0' && c <= '9')
            expectDigit = false;
        else if (c == '.' && !expectDigit)
            expectDigit = true;
        else
            return false;
    }
    return !version.empty() && !expectDigit;
}

int compareVersions(std::string_view a, std::string_view b)
{
    while (!a.empty() || !b.empty()) {
        const auto left = nextNumber(a);
        const auto right = nextNumber(b);
        if (left != right)
            return left < right ? -1 : 1;
    }
    return 0;
}

bool isTrustedAddress(const QUrl& url)
{
    if (url.scheme() == QLatin1String("https"))
        return !url.host().isEmpty();
    return url.scheme() == QLatin1String("http") && QHostAddress(url.host()).isLoopback();
}

}  // namespace AppcastFeed

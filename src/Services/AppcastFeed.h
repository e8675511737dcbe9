#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <string_view>
#include <vector>

// The update feed: an RSS document in the appcast style, one item per release. An item names
// its version in "sparkle:version" and "sparkle:shortVersionString", as elements or as attributes
// of its enclosure, links its release notes in "sparkle:releaseNotesLink" and its download in the
// enclosure's "url" (else in "link").
namespace AppcastFeed {

struct Item {
    QString version;       // compared with the running build's
    QString shortVersion;  // shown; the version when the item gives none
    QUrl releaseNotes;     // may be empty
    QUrl download;
};

// The items whose version is well formed and whose download link is one we would open, in feed
// order. None when the text is not an RSS document.
std::optional<std::vector<Item>> parse(const QByteArray& text);

// The newest of the items, or none when there is none.
std::optional<Item> newest(const std::vector<Item>& items);

// Dot-separated whole numbers ("2", "1.10.3"), nothing else.
bool isWellFormedVersion(std::string_view version);
// Below zero when `a` is older than `b`, zero when equal, above zero when newer; number by
// number, a missing number counting as zero ("1.0" equals "1"). Both must be well formed.
int compareVersions(std::string_view a, std::string_view b);

// Where we fetch the feed from and send the user for downloads: HTTPS, or plain HTTP only to
// this machine itself (which is how a feed is tried out before it is published).
bool isTrustedAddress(const QUrl& url);

}  // namespace AppcastFeed

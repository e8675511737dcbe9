#pragma once

// The one place where the QObject layer turns engine values (UTF-8 std::string and friends) into
// Qt's and back.

#include "Platform/Clock.h"
#include "Platform/UserText.h"
#include "Platform/Utf8.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <string>
#include <vector>

namespace QtConversions {

// Engine strings are often file names, which are bytes. A byte that is not part of well-formed
// UTF-8 becomes a lone low surrogate U+DC80..U+DCFF, which no decoded text contains, and toStd()
// turns it back into the byte: a name travels through QML and back unchanged, so the file it
// names is the one acted on. Such a character shows as a replacement mark.
inline QString toQt(const std::string& text)
{
    if (Utf8::isValid(text))
        return QString::fromStdString(text);
    QString converted;
    converted.reserve(static_cast<qsizetype>(text.size()));
    const std::string_view bytes = text;
    std::size_t runStart = 0;
    std::size_t index = 0;
    const auto flush = [&] {
        converted += QString::fromUtf8(bytes.data() + runStart, static_cast<qsizetype>(index - runStart));
    };
    while (index < bytes.size()) {
        if (const std::size_t length = Utf8::wellFormedLength(bytes.substr(index))) {
            index += length;
            continue;
        }
        flush();
        converted += QChar(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(bytes[index])));
        runStart = ++index;
    }
    flush();
    return converted;
}

inline std::string toStd(const QString& text)
{
    std::string bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text.at(i).unicode();
        const bool escapedByte = unit >= 0xDC80 && unit <= 0xDCFF && (i == 0 || !text.at(i - 1).isHighSurrogate());
        if (!escapedByte)
            continue;
        bytes += QStringView(text).mid(start, i - start).toUtf8().toStdString();
        bytes += static_cast<char>(unit - 0xDC00);
        start = i + 1;
    }
    bytes += QStringView(text).mid(start).toUtf8().toStdString();
    return bytes;
}

inline QStringList toQt(const std::vector<std::string>& texts)
{
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const auto& text : texts)
        list.append(toQt(text));
    return list;
}

inline std::vector<std::string> toStd(const QStringList& texts)
{
    std::vector<std::string> list;
    list.reserve(static_cast<std::size_t>(texts.size()));
    for (const auto& text : texts)
        list.push_back(toStd(text));
    return list;
}

inline QDateTime toQt(std::optional<Clock::TimePoint> time)
{
    if (!time)
        return {};
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(time->time_since_epoch()).count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

// A text the engine wrote for people, in the running language: looked up under the context it
// was marked with (Platform/UserText.h). Anything else, a folder's name or a command's output,
// has no translation and comes back as it is, byte for byte.
inline QString translated(const char* context, const std::string& text)
{
    if (text.empty() || !Utf8::isValid(text))
        return toQt(text);
    return QCoreApplication::translate(context, text.c_str());
}

// A sentence with values: translated whole, then the values put in where the language has them.
inline QString translated(const char* context, const UserText& sentence)
{
    return toQt(UserText::filled(toStd(translated(context, sentence.text)), sentence.values));
}

}  // namespace QtConversions

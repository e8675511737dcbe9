#include "DiskNodeText.h"

#include "Platform/ByteCountFormatter.h"
#include "Platform/Paths.h"
#include "QtConversions.h"

#include <QCoreApplication>

using QtConversions::toQt;

namespace {

// The category labels come from the engine in English; listed here so the translation tools
// find them.
[[maybe_unused]] constexpr const char* categoryLabels[] = {
    QT_TRANSLATE_NOOP("FileCategory", "Video"),     QT_TRANSLATE_NOOP("FileCategory", "Images"),
    QT_TRANSLATE_NOOP("FileCategory", "Audio"),     QT_TRANSLATE_NOOP("FileCategory", "Archives"),
    QT_TRANSLATE_NOOP("FileCategory", "Apps"),      QT_TRANSLATE_NOOP("FileCategory", "Code"),
    QT_TRANSLATE_NOOP("FileCategory", "Documents"), QT_TRANSLATE_NOOP("FileCategory", "Caches & logs"),
    QT_TRANSLATE_NOOP("FileCategory", "Other"),
};

}  // namespace

namespace DiskNodeText {

QString name(const DiskNode& node)
{
    if (node.isSynthetic())
        return QCoreApplication::translate("DiskMap", "(smaller items)");
    return toQt(std::string(node.name()));
}

QString labelledName(const DiskNode& node)
{
    return node.isDirectory() ? name(node) + QLatin1Char('/') : name(node);
}

QString categoryLabel(FileCategory category)
{
    const std::string label(FileCategories::label(category));
    return QCoreApplication::translate("FileCategory", label.c_str());
}

QString categoryLabel(const DiskNode& node)
{
    return categoryLabel(node.category());
}

QString kind(const DiskNode& node)
{
    return node.isDirectory() ? QCoreApplication::translate("DiskMap", "folder") : categoryLabel(node);
}

QString displayId(const DiskNode& node)
{
    return toQt(Paths::abbreviatingWithTilde(node.id()));
}

bool isHidden(const DiskNode& node)
{
    return !node.isSynthetic() && node.name().starts_with('.');
}

QString summary(const DiskNode& node)
{
    QString text = toQt(ByteCountFormatter::string(node.size())) + QStringLiteral(" · ") + categoryLabel(node);
    if (isHidden(node))
        text += QStringLiteral(" · ") + QCoreApplication::translate("DiskMap", "hidden");
    return text;
}

QVariantMap describe(const DiskNode& node)
{
    return {
        {QStringLiteral("id"), toQt(node.id())},
        {QStringLiteral("displayId"), displayId(node)},
        {QStringLiteral("name"), name(node)},
        {QStringLiteral("labelledName"), labelledName(node)},
        {QStringLiteral("size"), qint64(node.size())},
        {QStringLiteral("sizeText"), toQt(ByteCountFormatter::string(node.size()))},
        {QStringLiteral("isDirectory"), node.isDirectory()},
        {QStringLiteral("isSynthetic"), node.isSynthetic()},
        {QStringLiteral("isHidden"), isHidden(node)},
        {QStringLiteral("canZoom"), node.isDirectory() && !node.children().empty()},
        {QStringLiteral("category"), toQt(std::string(FileCategories::rawValue(node.category())))},
        {QStringLiteral("categoryLabel"), categoryLabel(node)},
        {QStringLiteral("kind"), kind(node)},
        {QStringLiteral("summary"), summary(node)},
    };
}

}  // namespace DiskNodeText

#include "QtConversions.h"

#include <QJSEngine>

#include <gtest/gtest.h>

TEST(QtConversions, FileNamesCrossIntoQtAndBackByteForByte)
{
    const std::string cases[] = {"", "plain", "caf\xc3\xa9 \xf0\x9f\x93\x81", "caf\xe9", "\xff\xfe", "a\\b",
                                 "cut \xe2\x82", "\xed\xa0\x80 surrogate bytes", std::string("nul\0in", 6)};
    QJSEngine engine;
    const QJSValue passThrough = engine.evaluate(QStringLiteral("(function (text) { return '' + text; })"));
    for (const auto& bytes : cases) {
        const QString text = QtConversions::toQt(bytes);
        EXPECT_EQ(QtConversions::toStd(text), bytes) << testing::PrintToString(bytes);
        // Through the script engine, as an id handed to a view and back.
        const QString back = passThrough.call({text}).toString();
        EXPECT_EQ(QtConversions::toStd(back), bytes) << testing::PrintToString(bytes);
    }
    // Text that is UTF-8 converts exactly as Qt converts it.
    EXPECT_EQ(QtConversions::toQt("caf\xc3\xa9"), QString::fromUtf8("caf\xc3\xa9"));
    EXPECT_EQ(QtConversions::toStd(QStringLiteral("\U0001F4C1 x")), QStringLiteral("\U0001F4C1 x").toStdString());
}

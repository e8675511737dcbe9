#include "Platform/PlistDocument.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

// Property lists come from files anyone can write (an app's Info.plist, a launch agent): whatever
// they hold reads as a value or as nothing, and never stops the application.
TEST(PlistDocument, ReadsStringsAndNothingElseFromWhateverTheFileHolds)
{
    const auto xml = [](const std::string& body) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + body + "</plist>";
    };
    struct Case {
        std::string bytes;
        std::optional<std::string> name;
    };
    const Case cases[] = {
        {xml("<dict><key>Name</key><string>Mail</string></dict>"), "Mail"},
        {xml("<dict><key>Name</key><integer>7</integer></dict>"), std::nullopt},
        {xml("<array><string>Name</string></array>"), std::nullopt},  // the top is no dictionary
        {xml("<dict><key>Other</key><string>x</string></dict>"), std::nullopt},
        // A NUL inside the string: the library's copying getter would abort on it, and what
        // follows the NUL is not kept by the parser.
        {xml(std::string("<dict><key>Name</key><string>com.\0\0is.App</string></dict>", 57)), "com."},
        {"", std::nullopt},
        {"not a property list at all", std::nullopt},
    };
    for (const auto& [bytes, name] : cases) {
        const auto document = PlistDocument::parse(bytes);
        EXPECT_EQ(document.string("Name"), name) << testing::PrintToString(bytes);
        EXPECT_EQ(document.isDictionary(), bytes.find("<dict>") != std::string::npos) << bytes;
    }
}

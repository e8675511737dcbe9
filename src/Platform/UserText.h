#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the engine writes for people is English, marked where it is written with
// QT_TRANSLATE_NOOP(context, text): Qt's translation tools collect every text so marked, and the
// QObject layer looks a text up under its context when it shows it (QtConversions::translated).
// The engine links no Qt, so the marker is defined here as Qt defines it — the text itself, with
// the same parameters, so whichever header comes first the two definitions agree. A text the
// engine did not write, such as a folder's name or a command's output, has no translation and is
// shown as it came.
#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(scope, x) x
#endif

// A sentence for people with values in it, kept apart so that the sentence is translated whole
// and each language puts the values where its grammar wants them: `text` is the marked English
// with "%1", "%2", … standing for `values`.
struct UserText {
    std::string text;
    std::vector<std::string> values = {};

    // The sentence with its values in, in English.
    std::string english() const { return filled(text, values); }

    bool operator==(const UserText&) const = default;
    // Compares as the English sentence people read.
    friend bool operator==(const UserText& sentence, const std::string& english) { return sentence.english() == english; }

    // `text` with every "%N" replaced by the Nth value, in one pass: a value that itself holds
    // "%2" stays as it is, and a "%N" with no value stays as written.
    static std::string filled(std::string_view text, const std::vector<std::string>& values);
};

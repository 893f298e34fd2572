#pragma once

#include "check/findings/PxTag.h"
#include "format/PxFormatRows.h"

#include <QString>

/**
 * What can be asked of an element by itself, and what is reported if it fails.
 *
 * Of neighbouring rules about the same attribute only the first that fails is reported.
 */
struct PxRule
{
    using Predicate = bool (*)(const QString &value);
    using Function = QString (*)(const QString &value);

    /** What a rule asks of a value. */
    struct Test
    {
        enum class Kind { Given, HasChild, NotEmpty, NotBlank, AtLeast, Matching, Unique };

        Kind kind;
        int least = 0;
        Predicate matches = nullptr;
        Function key = nullptr;

        /** The attribute is there. */
        static constexpr Test given() { return {Kind::Given}; }
        /** The element has a child of the name. */
        static constexpr Test hasChild() { return {Kind::HasChild}; }
        /** The value is there, and not empty. */
        static constexpr Test notEmpty() { return {Kind::NotEmpty}; }
        /** The value is there, and more than blanks. */
        static constexpr Test notBlank() { return {Kind::NotBlank}; }
        /** A value that is a whole number is not smaller. */
        static constexpr Test atLeast(int least) { return {Kind::AtLeast, least}; }
        /** The function accepts the value, if one is given. */
        static constexpr Test matching(Predicate matches) { return {Kind::Matching, 0, matches}; }
        /**
         * No earlier child of the same parent has the value, or another value with the same key.
         * An empty key is never the same.
         */
        static constexpr Test unique(Function key = nullptr)
        {
            return {Kind::Unique, 0, nullptr, key};
        }
    };

    /** A text of a finding, or a function that makes it from the value. */
    struct Text
    {
        constexpr Text(const char *plainText = "") : text(plainText) {}
        constexpr Text(Function textOfValue) : function(textOfValue) {}

        const char *text = nullptr;
        Function function = nullptr;
    };

    PxTag tag;
    const char *path; ///< of the element, as in "product/spines"; empty for the one to start from
    const char *name; ///< of an attribute or child; null for the text between the tags, trimmed
    Test test;
    /**
     * In the message %1 is the value, or the key of a unique one, %2 the name of the attribute, and
     * %3 the earlier element with the same value.
     */
    const char *message;
    Text now;                    ///< %1 and %2 as above, %3 the value of the needed attribute
    Text hint = {};              ///< used if the file does not show what was meant; no places
    const char *needs = nullptr; ///< an attribute; the rule is skipped where it is empty
};

// The tables, each in the folder of its subject.
PxRows<PxRule> productRules();
PxRows<PxRule> defaultsRules();
PxRows<PxRule> themeRules();
PxRows<PxRule> frameRules();

#pragma once

#include "check/findings/PxTag.h"
#include "format/PxFormatRows.h"

#include <QString>

/** What a rule asks of a value. */
struct PxRuleTest
{
    using Predicate = bool (*)(const QString &value);
    using Key = QString (*)(const QString &value);
    enum class Kind { Given, HasChild, NotEmpty, NotBlank, AtLeast, Matching, Unique };

    Kind kind;
    int least = 0;
    Predicate matches = nullptr;
    Key key = nullptr;

    /** The attribute is there. */
    static constexpr PxRuleTest given() { return {Kind::Given}; }
    /** The element has a child of the name. */
    static constexpr PxRuleTest hasChild() { return {Kind::HasChild}; }
    /** The value is there, and not empty. */
    static constexpr PxRuleTest notEmpty() { return {Kind::NotEmpty}; }
    /** The value is there, and more than blanks. */
    static constexpr PxRuleTest notBlank() { return {Kind::NotBlank}; }
    /** A whole number, if one is given, is not smaller. */
    static constexpr PxRuleTest atLeast(int least) { return {Kind::AtLeast, least}; }
    /** The function accepts the value, if one is given. */
    static constexpr PxRuleTest matching(Predicate matches) { return {Kind::Matching, 0, matches}; }
    /** No element before it, below the same parent, has the value, nor one of the same key. */
    static constexpr PxRuleTest unique(Key key = nullptr)
    {
        return {Kind::Unique, 0, nullptr, key};
    }
};

/** A text of a finding, or a function that makes it from the value. */
struct PxRuleText
{
    using Function = QString (*)(const QString &value);

    constexpr PxRuleText(const char *plainText = "") : text(plainText) {}
    constexpr PxRuleText(Function textOfValue) : function(textOfValue) {}

    const char *text = nullptr;
    Function function = nullptr;
};

/**
 * What can be asked of an element by itself, and what is reported if it fails.
 *
 * Of neighbouring rules about the same attribute only the first that fails is reported.
 */
struct PxRule
{
    PxTag tag;
    const char *path; ///< of the element, as in "product/spines"; empty for the one to start from
    const char *name; ///< of an attribute or child; null for the text between the tags, trimmed
    PxRuleTest test;
    /**
     * In the message %1 is the value, or the key of a unique one, %2 the name of the attribute, and
     * %3 the element before it with the same value.
     */
    const char *message;
    PxRuleText now;              ///< %1 and %2 as above, %3 the value of the needed attribute
    PxRuleText hint = {};        ///< where the file does not show what was meant; without places
    const char *needs = nullptr; ///< an attribute that must be filled for the rule to apply
};

// The tables, each in the folder of its subject.
PxRows<PxRule> productRules();
PxRows<PxRule> defaultsRules();
PxRows<PxRule> themeRules();
PxRows<PxRule> frameRules();

#pragma once

#include <PxProductClass.h>
#include <description/PxProductComparationCriterion.h>

#include <QCommandLineParser>
#include <QJsonArray>

/** What the user wants: a command with its options, or only a text about the program. */
class PxCommandLine
{
public:
    enum class Command {
        List = 1,
        Show = 2,
        Compatible = 4,
        Themes = 8,
        Variants = 16,
        Check = 32
    };

    explicit PxCommandLine(const QStringList &arguments);

    /** Why nothing can be done, in one line that says what to do; empty when all is well. */
    QString error() const { return m_error; }
    /** The text of --help or --version; empty when there is a command to run. */
    QString information() const { return m_information; }

    Command command() const { return m_command; }
    QString productName() const { return m_parser.positionalArguments().value(1); }
    /** What to check; empty for the catalogue of the resource directories. */
    QStringList paths() const { return m_parser.positionalArguments().mid(1); }
    bool isJson() const { return isSet("json"); }
    bool isVerbose() const { return isSet("verbose"); }
    /** 0 when none is given. */
    int pageCount() const { return m_pageCount; }
    /** None when none is given, which means all. */
    PxProductClass productClasses() const { return m_productClasses; }
    /** What must agree beside orientation, spine and the number of entries in the page list. */
    PxProductComparationCriterion criterion() const { return m_criterion; }
    QJsonArray criterionKeywords() const;
    /** Ids of themes are in lower case. Empty when none is given. */
    QString themeId() const { return value("theme").toLower(); }
    /** -1 when none is given. */
    int keyAccount() const { return m_keyAccount; }
    /** "en" or "de"; empty for that of the locale. */
    QString language() const { return value("lang"); }
    bool isSet(const char *option) const { return m_parser.isSet(QLatin1String(option)); }
    /** Of an option of the command; empty when it is not given. */
    QString value(const char *option) const { return m_parser.value(QLatin1String(option)); }
    /** The same of an option that may be given several times. */
    QStringList values(const char *option) const { return m_parser.values(QLatin1String(option)); }

private:
    bool readCommand(const QStringList &arguments);
    void readOptions(const QStringList &arguments);
    bool checkArguments();
    void readValues();
    int readNumber(const QString &option, int minimum, int maximum);
    template <typename ENUM>
    ENUM readKeywords(const QString &option, const QHash<QString, ENUM> &keywords);
    void setError(const QString &error);

    QCommandLineParser m_parser;
    Command m_command = Command::List;
    int m_pageCount = 0;
    int m_keyAccount = -1;
    PxProductClass m_productClasses = PxProductClassUnknown;
    PxProductComparationCriterion m_criterion = PxProductComparationNone;
    QString m_error;
    QString m_information;
};

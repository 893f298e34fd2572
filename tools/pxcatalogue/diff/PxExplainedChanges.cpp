#include "diff/PxExplainedChanges.h"

#include "format/PxOriginRows.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

using Keys = QSet<QString>;

/** What only an export has, or what a change is named by though it follows from others. */
constexpr PxOriginRow exportRows[] = {
    {"/pages/list", "pages"},
    {"/pages/sides", "/pageKinds", "where the pages of the list lie"},
    {"/pages/offered", "/product/isOffered /product/class", "none if it is not offered"},
    {"/pages/explicitNumberOfNormalPages", "/pages/offered", "as many as are offered"},
    {"/sizes/page", "/product/isOffered", "none if it is not offered"},
    {"/sizes/cover", "/pages/offered", "larger by what the spines say"},
    {"/spine/width", "/spine/hasSpine", "none without a spine"},
    {"/spine/maxFontHeight", "/spine/hasSpine", "none without a spine"},
    {"/pageKinds/*", "/pageKinds /pages/offered", "a row for each kind of page"},
    {"/templates/*", "/pageKinds /pages/offered", "a row for each kind of page"},
    {"/themeTemplates/*", "/pageKinds /pages/offered", "a row for each kind of page"},
    {"/legacy/replacedPage", "/legacy/replaces", "of the replaced product"},
    {"/legacy/replacedSpine", "/legacy/replaces", "of the replaced product"},
    {"/legacy/replacedCover", "/legacy/replaces", "of the replaced product"},
};

/** Values whose inputs explain nothing beyond them: only their own changes explain others. */
constexpr const char *ends[] = {"/product/isOffered", "/pages/offered", "/pages/pageCount",
                                "/pages/pageCounts", "/pages/printedPages"};

/** Values that follow from the page list, which nobody reads who looks for what customers notice.
 */
constexpr const char *alwaysNamed[] = {"/spine/hasSpine", "/pages/hasCover"};

template <std::size_t COUNT>
bool isOneOf(const char *const (&pointers)[COUNT], const QString &pointer)
{
    return std::any_of(std::begin(pointers), std::end(pointers),
                       [&pointer](const char *other) { return pointer == QLatin1String(other); });
}

bool isEnd(const QString &pointer)
{
    return isOneOf(ends, pointer);
}

/** From which other values each value follows. */
class Explanations
{
public:
    Explanations()
    {
        for (const PxDiffKey &key : PxDiffKeys::ofProducts())
            m_keys.insert(key.pointer);
        for (const PxOriginRow &row : PxOriginRows::all()) {
            if (!isEnd(row.pointer))
                add(row);
        }
        for (const PxOriginRow &row : exportRows)
            add(row);
        for (const QString &key : qAsConst(m_keys))
            m_explaining[key] = explaining(key);
    }

    Keys explaining(const PxDiffKey &key) const { return m_explaining[key.pointer]; }
    /** Whether a file may say a value itself, which else follows from others. */
    bool mayBeWritten(const PxDiffKey &key) const { return m_writable.contains(key.pointer); }
    bool dependsOnPageCount(const PxDiffKey &key) const
    {
        return m_byPageCount.contains(key.pointer) || m_byPageCount.intersects(explaining(key));
    }

private:
    /** The key of a value, or of the value of which it is a part; itself if there is none. */
    QString keyOf(const QString &pointer) const
    {
        for (QString around = pointer; !around.isEmpty();
             around.truncate(around.lastIndexOf('/'))) {
            if (m_keys.contains(around))
                return around;
        }
        return pointer;
    }

    void add(const PxOriginRow &row)
    {
        const QString key = keyOf(row.pointer);
        const QString inputs = row.inputs;
        if (inputs.contains("/pages/pageCount"))
            m_byPageCount.insert(key);
        if (!row.rule) {
            if (row.when != PxOriginCase::Always)
                m_writable.insert(key);
            for (const QString &attribute :
                 inputs.section(QRegularExpression("[; ]"), 0, 0).split('|'))
                m_written[attribute].insert(key);
            return;
        }
        for (const QString &input : inputs.split(QRegularExpression("[;| ]+")))
            m_inputs[key].insert(input.startsWith('/') ? keyOf(input) : input);
    }

    /** Other values, and those that are written in an attribute from which this one follows. */
    Keys explaining(const QString &key) const
    {
        Keys found;
        Keys followed;
        QStringList open = m_inputs[key].values();
        while (!open.isEmpty()) {
            const QString next = open.takeLast();
            if (followed.contains(next))
                continue;
            followed.insert(next);
            found += m_written[next];
            if (!isEnd(next))
                open += m_inputs[next].values();
        }
        found += followed;
        found.remove(key);
        return found;
    }

    Keys m_keys;
    Keys m_writable;                // some files say it, others leave it to a rule
    QHash<QString, Keys> m_inputs;  // of computed values: values, attributes and elements
    QHash<QString, Keys> m_written; // what is read from an attribute as it is
    QHash<QString, Keys> m_explaining;
    Keys m_byPageCount;
};

const Explanations &explanations()
{
    static const Explanations ourExplanations;
    return ourExplanations;
}

bool isNothing(const QJsonValue &value)
{
    return value.isNull() || value == QString();
}

/** The cover is larger than the page by attributes of its own, which may have changed as well. */
bool isSameDifference(const PxChange &a, const PxChange &b)
{
    const auto difference = [](const PxChange &change, const char *side) {
        return change.after[side].toDouble() - change.before[side].toDouble();
    };
    return difference(a, "width") == difference(b, "width") &&
           difference(a, "height") == difference(b, "height");
}

/** One default template is for both sides: the first one is named, with the other in its text. */
class NamedTemplates
{
public:
    /** Adds the change, or names its side in the one that is there already. */
    void addTo(QVector<PxChange> *changes, const PxChange &change)
    {
        const QString pointer = change.key->pointer;
        if (!pointer.startsWith("/templates/") && !pointer.startsWith("/themeTemplates/")) {
            changes->append(change);
            return;
        }
        const QJsonArray values{change.row.section(' ', 0, -2), pointer, withoutSide(change.before),
                                withoutSide(change.after)};
        const QByteArray text = QJsonDocument(values).toJson(QJsonDocument::Compact);
        const int index = m_known.value(text, changes->size());
        m_known.insert(text, index);
        if (index < changes->size())
            (*changes)[index].row += ", " + change.row.section(' ', -1);
        else
            changes->append(change);
    }

private:
    static QJsonValue withoutSide(const QJsonValue &value)
    {
        QJsonObject row = value.toObject();
        row.remove("alignment");
        return value.isObject() ? QJsonValue(row) : value;
    }

    QMap<QByteArray, int> m_known; // places in the list
};

bool explains(const PxChange &cause, const PxChange &change)
{
    const QString key = cause.key->pointer;
    if (key == "/product/isOffered") // what a product that is not offered lacks
        return isNothing(change.before) || isNothing(change.after);
    if (key == "/spine/hasSpine")
        return change.pointer.startsWith("/spine/");
    if (key == "/pages/offered" && change.pointer == "/sizes/cover")
        return isNothing(cause.before) || isNothing(cause.after);
    if (explanations().mayBeWritten(*change.key))
        return false;
    return key != "/sizes/page" || change.pointer != "/sizes/cover" || isNothing(cause.before) ||
           isNothing(cause.after) || isSameDifference(cause, change);
}

} // namespace

QVector<PxChange> PxExplainedChanges::removedFrom(const QVector<PxChange> &changes)
{
    QHash<QString, const PxChange *> causes; // by key
    for (const PxChange &change : changes)
        causes.insert(change.key->pointer, &change);
    const auto isExplained = [&causes](const PxChange &change) {
        const Keys keys = explanations().explaining(*change.key);
        return !isOneOf(alwaysNamed, change.pointer) &&
               std::any_of(keys.begin(), keys.end(), [&](const QString &key) {
                   return causes.contains(key) && explains(*causes[key], change);
               });
    };
    NamedTemplates templates;
    QVector<PxChange> left;
    for (const PxChange &change : changes) {
        if (!isExplained(change))
            templates.addTo(&left, change);
    }
    return left;
}

bool PxExplainedChanges::dependsOnPageCount(const PxDiffKey &key)
{
    return explanations().dependsOnPageCount(key);
}

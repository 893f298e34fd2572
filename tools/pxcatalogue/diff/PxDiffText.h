#pragma once

#include "diff/PxDiff.h"
#include "writing/PxOutputText.h"

/** Writes how two catalogues differ for people: first what customers notice. */
class PxDiffText
{
public:
    enum class Form { Plain, Markdown };
    static PxOutputText of(const PxDiff &diff, Form form);
    /** The changes of one object that customers notice, or the others: a line for each. */
    static QStringList linesOf(const QVector<PxChange> &changes, bool forCustomers);

private:
    explicit PxDiffText(Form form) : m_form(form) {}

    void addChanges(const PxDiff &diff, bool forCustomers);
    void addNames(const QString &kind, const PxDiffOfKind &diff);
    void addObject(const QString &name, const PxChangedObject &object, bool forCustomers);
    void addHeading(const QString &text);
    void addItem(const QString &text);
    void addObjectName(const QString &text);
    void addItemOfObject(const QString &text);
    QString shown(const QString &text) const;
    bool isMarkdown() const { return m_form == Form::Markdown; }

    Form m_form;
    bool m_isEmpty = true;
    PxOutputText m_text;
};

#pragma once

#include "why/PxWhyQuestion.h"
#include "writing/PxOutputText.h"

#include <QJsonArray>
#include <QJsonObject>

class PxReport;

/** The answer to one or several questions about a product: yes if each of them is. */
class PxWhyAnswer
{
public:
    /** `file` is the path of the product's file. */
    PxWhyAnswer(const QVector<PxWhyQuestion> &questions, const QString &file);

    bool isYes() const;
    QJsonObject json() const;
    PxOutputText text(int width) const;

private:
    QString decidedBy() const;
    void addFiles(PxReport *report) const;
    QVector<QJsonArray> rowsOf(const PxWhyQuestion &question, QString *decidedBy) const;
    QVector<QJsonArray> lostOf(const PxWhyQuestion &question) const;
    QString placesOf(const PxWhyRule &rule) const;
    QString placeOf(const PxOrigin &origin) const;

    QVector<PxWhyQuestion> m_questions;
    QString m_file;
};

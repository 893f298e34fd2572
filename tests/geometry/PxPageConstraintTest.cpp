#include <PxElement.h>
#include <geometry/PxPageConstraint.h>

#include <QTest>

class PxPageConstraintTest : public QObject
{
    Q_OBJECT

private slots:
    void setsSplitAndAddsDoNot();
    void matchesWhatItSharesOrLeavesOpen();
    void writesOneChildPerElement();
};

void PxPageConstraintTest::setsSplitAndAddsDoNot()
{
    PxPageConstraint constraint(PxPageTypeCover, PxPageAlignmentAll);
    QCOMPARE(constraint.pageTypes().size(), 10);
    QCOMPARE(constraint.intendetAlignments().size(), 7);
    constraint.setPageTypes(PxPageTypeNone);
    constraint.setIntendetAlignment(PxPageAlignmentTop);
    QCOMPARE(constraint.intendetAlignments().size(), 1);
    const auto negative = static_cast<PxPageTypeEnum>(-1);
    QVERIFY(constraint.isPageType(PxPageType())); // none set means all
    QVERIFY(constraint.isPageType(negative));
    constraint.addPageType(PxPageTypeCover);
    QCOMPARE(constraint.pageTypes().size(), 1);
    QVERIFY(constraint.isPageType(PxPageTypeSpine) && constraint.isPageType(PxPageTypeAll));
    QVERIFY(!constraint.isPageType(PxPageTypeEmptyPage));
    // What has no bits shares none, though it has the spine's.
    QVERIFY(!constraint.isPageType(negative));
    QVERIFY(!constraint.isPageType(static_cast<PxPageTypeEnum>(0x80000001)));
    QVERIFY(!constraint.isPageType(PxPageTypeNone));
}

void PxPageConstraintTest::matchesWhatItSharesOrLeavesOpen()
{
    const PxPageConstraint open;
    const PxPageConstraint left(PxPageTypeCover, PxPageAlignmentLeft);
    const PxPageConstraint right(PxPageTypeSpine, PxPageAlignmentRight);
    const PxPageConstraint spine(PxPageTypeSpine, PxPageAlignmentNone);
    QVERIFY(open.matches(left) && left.matches(open));
    QVERIFY(spine.matches(left) && right.matches(spine));
    QVERIFY(!left.matches(right));
    QVERIFY(!right.matches(PxPageConstraint(PxPageTypeFullCover, PxPageAlignmentRight)));
}

void PxPageConstraintTest::writesOneChildPerElement()
{
    PxPageConstraint constraint(PxPageTypeSpine, static_cast<PxPageAlignment>(16 + 64));
    constraint.addPageType(static_cast<PxPageTypeEnum>(0x20 + 0x40));
    QDomElement parent = pxElement("<template/>");
    constraint.toXml(parent);
    QStringList children;
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        children.append(pxXml(e));
    QCOMPARE(children,
             QStringList({"<pagetype>spine</pagetype>", "<pagetype>emptypage, fullcover</pagetype>",
                          "<intendetAlignment>TOP</intendetAlignment>",
                          "<intendetAlignment>CENTER</intendetAlignment>"}));
}

QTEST_GUILESS_MAIN(PxPageConstraintTest)
#include "PxPageConstraintTest.moc"

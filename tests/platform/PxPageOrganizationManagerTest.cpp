#include <PxPageOrganizationCalculator.h>
#include <PxPageOrganizationManager.h>
#include <PxProductChecker.h>
#include <PxProductCheckerRegistry.h>
#include <PxProductType.h>

#include <QTest>

class PxPageOrganizationManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void asksTheCalculatorAddedLast();
    void asksTheCheckersOfAKind();
};

namespace {

class Calculator : public PxPageOrganizationCalculator
{
public:
    explicit Calculator(unsigned minimum) : m_minimum(minimum) {}
    PxPageCountOrganization createPageOrganization(const PxProductType &type) const override
    {
        return {m_minimum, unsigned(type.type()), 3};
    }

private:
    unsigned m_minimum;
};

/** Finds one type valid. */
class Checker : public PxProductChecker
{
public:
    Checker(int validType, int kind) : m_validType(validType), m_kind(kind) {}
    bool isValid(const PxProductType &type) const override { return type.type() == m_validType; }
    int type() const override { return m_kind; }
    int minPages(const PxProductType &) const override { return 0; }
    int maxPages(const PxProductType &) const override { return 0; }
    int pageIncrement(const PxProductType &) const override { return 0; }

private:
    int m_validType;
    int m_kind;
};

} // namespace

void PxPageOrganizationManagerTest::asksTheCalculatorAddedLast()
{
    PxPageOrganizationManager *manager = PxPageOrganizationManager::instance();
    QVERIFY(manager->pageCountOrganzation(70) == PxPageCountOrganization(1, 1, 0));

    manager->addCalculator(new Calculator(5));
    manager->addCalculator(new Calculator(unsigned(-1))); // how a missing number arrives here
    manager->addCalculator(nullptr);
    QVERIFY(manager->pageCountOrganzation(70) == PxPageCountOrganization(unsigned(-1), 70, 3));
    QCOMPARE(manager->minPages(70), -1);
    QCOMPARE(manager->maxPages(70), 70);
    QCOMPARE(manager->pageIncrement(70), 3);
}

void PxPageOrganizationManagerTest::asksTheCheckersOfAKind()
{
    PxProductCheckerRegistry *registry = PxProductCheckerRegistry::instance();
    static Checker four(40, 4); // registered for the life of the process
    static Checker five(50, 5);
    QVERIFY(!registry->isValid(40, 0));

    QVERIFY(registry->registerChecker(&four));
    QVERIFY(registry->registerChecker(&five));
    QVERIFY(!registry->registerChecker(&four));
    QVERIFY(!registry->registerChecker(nullptr));

    QVERIFY(registry->isValid(40, 0) && registry->isValid(50, 0));
    QVERIFY(registry->isValid(40, 4) && !registry->isValid(40, 5) && !registry->isValid(40, 6));
    QVERIFY(!registry->isValid(41, 0));
}

QTEST_APPLESS_MAIN(PxPageOrganizationManagerTest)
#include "PxPageOrganizationManagerTest.moc"

// The terminal progress bar.
#include "ProgressBar.h"

#include <QtTest>

class tst_ProgressBar : public QObject
{
    Q_OBJECT

private slots:
    void line_data();
    void line();
    void redrawsOnlyOnATerminal();
};

void tst_ProgressBar::line_data()
{
    QTest::addColumn<int>("done");
    QTest::addColumn<int>("total");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << 0 << 30 << "Reading [..............................]  0/30";
    QTest::newRow("a third") << 10 << 30 << "Reading [##########....................] 10/30";
    QTest::newRow("done") << 30 << 30 << "Reading [##############################] 30/30";
    QTest::newRow("beyond the total")
        << 40 << 30 << "Reading [##############################] 30/30";
    QTest::newRow("nothing to do") << 0 << 0 << "Reading [##############################] 0/0";
}

void tst_ProgressBar::line()
{
    QFETCH(int, done);
    QFETCH(int, total);
    QFETCH(QString, text);
    QCOMPARE(ProgressBar::line(QStringLiteral("Reading"), done, total), text);
}

void tst_ProgressBar::redrawsOnlyOnATerminal()
{
    QString outText, errText;
    QTextStream out(&outText), err(&errText);
    Console quiet { out, err, false };
    ProgressBar plain(quiet, QStringLiteral("Reading"), 2);
    plain.update(1);
    QVERIFY(outText.isEmpty());
    plain.finish(2);
    QCOMPARE(outText, ProgressBar::line(QStringLiteral("Reading"), 2, 2) + QLatin1Char('\n'));

    outText.clear();
    Console terminal { out, err, true };
    ProgressBar bar(terminal, QStringLiteral("Reading"), 2);
    bar.update(1);
    bar.update(1);
    bar.finish(2);
    QCOMPARE(outText,
        QLatin1Char('\r') + ProgressBar::line(QStringLiteral("Reading"), 1, 2) + QLatin1Char('\r')
            + ProgressBar::line(QStringLiteral("Reading"), 2, 2) + QLatin1Char('\n'));
    QVERIFY(errText.isEmpty());
}

QTEST_MAIN(tst_ProgressBar)
#include "tst_ProgressBar.moc"

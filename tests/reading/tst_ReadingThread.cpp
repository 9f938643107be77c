// The reading thread against a test host: batching of Loaded(), signal order,
// duplicate paths, unreadable files, Start and Clear while a file is read.
#include "ReadingTestHost.h"
#include "ReadingThread.h"
#include "SignalRelay.h"

#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <memory>
#include <thread>

namespace {

/// Deletes a reading thread only after Clear() has waited for its body: a
/// running thread is never destroyed.
struct ClearAndDelete
{
    void operator()(ReadingThread* thread) const
    {
        thread->Clear();
        delete thread;
    }
};
using ThreadPtr = std::unique_ptr<ReadingThread, ClearAndDelete>;

ReadingTestHost* Host()
{
    return static_cast<ReadingTestHost*>(qApp);
}

QStringList Numbered(const QString& stem, int count)
{
    QStringList paths;
    for (int i = 1; i <= count; ++i)
        paths << QStringLiteral("%1_%2.jpg").arg(stem).arg(i);
    return paths;
}

QStringList PathsOf(const QList<ZIImageDef*>& defs)
{
    QStringList paths;
    for (ZIImageDef* def : defs)
        paths << static_cast<TestImageDef*>(def)->path();
    return paths;
}

} // namespace

class tst_ReadingThread : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void initialState();
    void batches_data();
    void batches();
    void duplicatePaths_data();
    void duplicatePaths();
    void readsOnItsOwnThread();
    void clearWhileIdle();
    void clearThenStartReadsAgain();
    void clearDuringReadKeepsThatDefinition();
    void startDuringReadSwapsQueue();
    void startReplacesFinishedResults();

private:
    /// Waits for the body to have emitted `doneCount` Done() in all and ended.
    bool WaitForDone(int doneCount);

    ThreadPtr m_thread;
    std::unique_ptr<SignalRelay> m_relay;
};

void tst_ReadingThread::init()
{
    Host()->ResetCalls();
    Host()->SetFaults(false);
    m_thread.reset(new ReadingThread(nullptr));
    m_relay.reset(new SignalRelay(m_thread.get()));
}

void tst_ReadingThread::cleanup()
{
    m_thread.reset();
    m_relay.reset();
}

bool tst_ReadingThread::WaitForDone(int doneCount)
{
    QSignalSpy done(m_relay.get(), &SignalRelay::Done);
    while (m_relay->m_events.count(QStringLiteral("Done")) < doneCount) {
        if (!done.wait(10000))
            return false;
    }
    // Done() is the body's last act; the thread then ends at once.
    return m_thread->wait(10000);
}

void tst_ReadingThread::initialState()
{
    QVERIFY(!m_thread->isRunning());
    QVERIFY(m_thread->ZIImageDefs().isEmpty());
    QCOMPARE(m_thread->parent(), nullptr);

    QObject owner;
    auto* child = new ReadingThread(&owner);
    QCOMPARE(child->parent(), &owner);
    QVERIFY(child->ZIImageDefs().isEmpty());
}

void tst_ReadingThread::batches_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expectedEvents");
    QTest::addColumn<int>("expectedDefinitions");

    const QString start = QStringLiteral("Start");
    const QString loaded = QStringLiteral("Loaded");
    const QString done = QStringLiteral("Done");

    QTest::newRow("empty list") << QStringList() << QStringList { start, done } << 0;
    QTest::newRow("one file") << Numbered(QStringLiteral("a"), 1)
                              << QStringList { start, loaded, done } << 1;
    QTest::newRow("nine files") << Numbered(QStringLiteral("a"), 9)
                                << QStringList { start, loaded, done } << 9;
    QTest::newRow("ten files") << Numbered(QStringLiteral("a"), 10)
                               << QStringList { start, loaded, done } << 10;
    QTest::newRow("eleven files, last unreadable")
        << (Numbered(QStringLiteral("a"), 10) << QStringLiteral("null_11.jpg"))
        << QStringList { start, loaded, done } << 10;
    QTest::newRow("eleven files, last throws")
        << (Numbered(QStringLiteral("a"), 10) << QStringLiteral("throw_11.jpg"))
        << QStringList { start, loaded, done } << 10;
    QTest::newRow("eleven files, last throws a non-exception")
        << (Numbered(QStringLiteral("a"), 10) << QStringLiteral("throwint_11.jpg"))
        << QStringList { start, loaded, done } << 10;
    QTest::newRow("eleven files") << Numbered(QStringLiteral("a"), 11)
                                  << QStringList { start, loaded, loaded, done } << 11;
    QTest::newRow("twenty files") << Numbered(QStringLiteral("a"), 20)
                                  << QStringList { start, loaded, loaded, done } << 20;
    QTest::newRow("twenty-five files") << Numbered(QStringLiteral("a"), 25)
                                       << QStringList { start, loaded, loaded, loaded, done } << 25;
    QTest::newRow("twenty-two files, last two unreadable")
        << (Numbered(QStringLiteral("a"), 20)
               << QStringLiteral("null_21.jpg") << QStringLiteral("throw_22.jpg"))
        << QStringList { start, loaded, loaded, done } << 20;
    QTest::newRow("all unreadable") << QStringList { QStringLiteral("null_1.jpg"),
        QStringLiteral("throw_2.jpg"), QStringLiteral("throwint_3.jpg") }
                                    << QStringList { start, done } << 0;
    // The tenth definition comes from the twelfth file, which empties the queue.
    QTest::newRow("twelve files, first two unreadable")
        << (QStringList { QStringLiteral("null_1.jpg"), QStringLiteral("throw_2.jpg") }
               << Numbered(QStringLiteral("a"), 10))
        << QStringList { start, loaded, done } << 10;
    // The tenth definition comes from the eleventh file; the twelfth is the last.
    QTest::newRow("twelve files, fifth unreadable")
        << (Numbered(QStringLiteral("a"), 4)
               << QStringLiteral("null_5.jpg") << Numbered(QStringLiteral("b"), 7))
        << QStringList { start, loaded, loaded, done } << 11;
}

void tst_ReadingThread::batches()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, expectedEvents);
    QFETCH(int, expectedDefinitions);

    QSignalSpy loaded(m_relay.get(), &SignalRelay::Loaded);
    QSignalSpy started(m_relay.get(), &SignalRelay::Started);
    QSignalSpy done(m_relay.get(), &SignalRelay::Done);

    m_thread->Start(files);
    QVERIFY(WaitForDone(1));
    QCoreApplication::processEvents();

    QCOMPARE(m_relay->m_events, expectedEvents);
    QCOMPARE(started.count(), 1);
    QCOMPARE(done.count(), 1);
    QCOMPARE(loaded.count(), expectedEvents.count(QStringLiteral("Loaded")));

    // Every file is asked for once, in order; the readable ones are kept in order.
    QCOMPARE(Host()->Calls(), files);
    QStringList readable;
    for (const QString& path : files) {
        if (!path.contains(QLatin1String("null")) && !path.contains(QLatin1String("throw")))
            readable << path;
    }
    const QList<ZIImageDef*> defs = m_thread->ZIImageDefs();
    QCOMPARE(defs.size(), expectedDefinitions);
    QCOMPARE(PathsOf(defs), readable);
    for (ZIImageDef* def : defs)
        QVERIFY(Host()->Made(def));
}

void tst_ReadingThread::duplicatePaths_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expectedReads");

    const QString a = QStringLiteral("/p/a.jpg");
    const QString b = QStringLiteral("/p/b.jpg");
    const QString c = QStringLiteral("/p/c.jpg");
    QTest::newRow("same path three times") << QStringList { a, a, a } << QStringList { a };
    QTest::newRow("first position kept")
        << QStringList { b, a, b, c, a, b } << QStringList { b, a, c };
    QTest::newRow("case matters") << QStringList { a, QStringLiteral("/p/A.jpg"), a }
                                  << QStringList { a, QStringLiteral("/p/A.jpg") };
    QTest::newRow("no duplicates") << QStringList { c, b, a } << QStringList { c, b, a };
}

void tst_ReadingThread::duplicatePaths()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, expectedReads);

    m_thread->Start(files);
    QVERIFY(WaitForDone(1));
    QCOMPARE(Host()->Calls(), expectedReads);
    QCOMPARE(PathsOf(m_thread->ZIImageDefs()), expectedReads);
}

void tst_ReadingThread::readsOnItsOwnThread()
{
    m_thread->Start(Numbered(QStringLiteral("a"), 12));
    QVERIFY(WaitForDone(1));

    const QList<QThread*> threads = Host()->CallThreads();
    QCOMPARE(threads.size(), 12);
    for (QThread* thread : threads) {
        QVERIFY(thread != qApp->thread());
        QCOMPARE(thread, static_cast<QThread*>(m_thread.get()));
    }
}

void tst_ReadingThread::clearWhileIdle()
{
    // Never started.
    m_thread->Clear();
    QVERIFY(!m_thread->isRunning());
    QVERIFY(m_thread->ZIImageDefs().isEmpty());

    // After a finished run, the results are dropped.
    m_thread->Start(Numbered(QStringLiteral("a"), 3));
    QVERIFY(WaitForDone(1));
    QCOMPARE(m_thread->ZIImageDefs().size(), 3);
    m_thread->Clear();
    QVERIFY(!m_thread->isRunning());
    QVERIFY(m_thread->ZIImageDefs().isEmpty());
    QCOMPARE(Host()->Calls().size(), 3);
}

void tst_ReadingThread::clearThenStartReadsAgain()
{
    // Clear sets the stop flag; the next body resets it and reads everything.
    m_thread->Clear();
    m_thread->Start(Numbered(QStringLiteral("a"), 4));
    QVERIFY(WaitForDone(1));
    QCOMPARE(PathsOf(m_thread->ZIImageDefs()), Numbered(QStringLiteral("a"), 4));
    QCOMPARE(m_relay->m_events,
        (QStringList {
            QStringLiteral("Start"), QStringLiteral("Loaded"), QStringLiteral("Done") }));
}

void tst_ReadingThread::clearDuringReadKeepsThatDefinition()
{
    const QStringList files = Numbered(QStringLiteral("a"), 3)
        << QStringLiteral("block.jpg") << QStringLiteral("after.jpg");
    m_thread->Start(files);
    Host()->WaitUntilBlocked();
    // Three definitions are in; the body is inside the host's call for the fourth.
    QCOMPARE(m_thread->ZIImageDefs().size(), 3);

    // Opens the host's gate once Clear() has emptied the list and set the stop
    // flag, while Clear() waits on this thread.
    std::thread opener([this] {
        while (!m_thread->ZIImageDefs().isEmpty())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        Host()->OpenGate();
    });
    m_thread->Clear();
    opener.join();

    QVERIFY(!m_thread->isRunning());
    // The file being read when Clear() came lands in the emptied list.
    QCOMPARE(PathsOf(m_thread->ZIImageDefs()), QStringList { QStringLiteral("block.jpg") });
    // The queue was emptied: the last file is never asked for.
    QCOMPARE(Host()->Calls(), Numbered(QStringLiteral("a"), 3) << QStringLiteral("block.jpg"));
    // Loaded() because the queue is empty, then Done().
    QTRY_COMPARE(m_relay->m_events.size(), 3);
    QCOMPARE(m_relay->m_events,
        (QStringList {
            QStringLiteral("Start"), QStringLiteral("Loaded"), QStringLiteral("Done") }));
}

void tst_ReadingThread::startDuringReadSwapsQueue()
{
    m_thread->Start({ QStringLiteral("first.jpg"), QStringLiteral("block.jpg"),
        QStringLiteral("dropped.jpg") });
    Host()->WaitUntilBlocked();
    QCOMPARE(PathsOf(m_thread->ZIImageDefs()), QStringList { QStringLiteral("first.jpg") });

    // The running body goes on with the new queue; the thread is not restarted.
    m_thread->Start({ QStringLiteral("x.jpg"), QStringLiteral("y.jpg"), QStringLiteral("x.jpg") });
    QVERIFY(m_thread->ZIImageDefs().isEmpty());
    Host()->OpenGate();
    QVERIFY(WaitForDone(1));
    QCoreApplication::processEvents();

    QCOMPARE(Host()->Calls(),
        (QStringList { QStringLiteral("first.jpg"), QStringLiteral("block.jpg"),
            QStringLiteral("x.jpg"), QStringLiteral("y.jpg") }));
    // The definition being read when the queue was swapped is in the new list.
    QCOMPARE(PathsOf(m_thread->ZIImageDefs()),
        (QStringList {
            QStringLiteral("block.jpg"), QStringLiteral("x.jpg"), QStringLiteral("y.jpg") }));
    QCOMPARE(m_relay->m_events,
        (QStringList {
            QStringLiteral("Start"), QStringLiteral("Loaded"), QStringLiteral("Done") }));
}

void tst_ReadingThread::startReplacesFinishedResults()
{
    m_thread->Start(Numbered(QStringLiteral("a"), 5));
    QVERIFY(WaitForDone(1));
    QCOMPARE(m_thread->ZIImageDefs().size(), 5);

    m_thread->Start(Numbered(QStringLiteral("b"), 2));
    QVERIFY(WaitForDone(2));
    QCOMPARE(PathsOf(m_thread->ZIImageDefs()), Numbered(QStringLiteral("b"), 2));
    QCOMPARE(m_relay->m_events.count(QStringLiteral("Start")), 2);
}

ZPH_READING_TEST_MAIN(tst_ReadingThread)
#include "tst_ReadingThread.moc"

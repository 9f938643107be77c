// Many Start/Clear cycles against a host that sleeps, throws and fails at
// random, with a GUI-thread receiver reading the list on every Loaded(). Meant
// to be run under ThreadSanitizer as well; a few seconds long.
#include "ReadingTestHost.h"
#include "ReadingThread.h"

#include <QElapsedTimer>
#include <QTest>

#include <random>

namespace {

ReadingTestHost* Host()
{
    return static_cast<ReadingTestHost*>(qApp);
}

/// Reads the whole list on every Loaded(), as the pages do, and checks that
/// every definition is one the host made and can be read.
class Receiver : public QObject
{
    Q_OBJECT

public:
    explicit Receiver(ReadingThread* thread) : m_thread(thread)
    {
        // Queued: Loaded() is emitted with the thread's lock held. Named
        // connections: the generated dispatcher reads nothing of the queued
        // call but the slot's index.
        connect(thread, SIGNAL(Loaded()), this, SLOT(OnLoaded()), Qt::QueuedConnection);
        connect(thread, SIGNAL(Start()), this, SLOT(OnStart()), Qt::QueuedConnection);
        connect(thread, SIGNAL(Done()), this, SLOT(OnDone()), Qt::QueuedConnection);
    }

public slots:
    void OnStart() { ++m_starts; }
    void OnDone() { ++m_dones; }

    void OnLoaded()
    {
        ++m_loadeds;
        const QList<ZIImageDef*> defs = m_thread->ZIImageDefs();
        for (ZIImageDef* def : defs) {
            if (!Host()->Made(def)) {
                ++m_foreign;
                continue;
            }
            const auto* image = static_cast<TestImageDef*>(def);
            if (image->FocalLength() != 35.0f || !image->path().startsWith(QLatin1String("img_")))
                ++m_foreign;
            m_readDefinitions += 1;
        }
    }

public:
    ReadingThread* m_thread;
    int m_starts = 0;
    int m_dones = 0;
    int m_loadeds = 0;
    int m_foreign = 0;
    qint64 m_readDefinitions = 0;
};

} // namespace

class tst_ReadingThreadStress : public QObject
{
    Q_OBJECT

private slots:
    void startAndClearCycles();
};

void tst_ReadingThreadStress::startAndClearCycles()
{
    Host()->ResetCalls();
    Host()->SetFaults(true);

    ReadingThread thread(nullptr);
    Receiver receiver(&thread);
    std::mt19937 engine(2024u);
    auto chance = [&engine](int percent) {
        return std::uniform_int_distribution<int>(0, 99)(engine) < percent;
    };
    auto randomFiles = [&engine] {
        QStringList files;
        const int count = std::uniform_int_distribution<int>(0, 24)(engine);
        for (int i = 0; i < count; ++i) {
            // A few repeats, so duplicate removal runs too.
            files << QStringLiteral("img_%1.jpg")
                         .arg(std::uniform_int_distribution<int>(0, 40)(engine));
        }
        return files;
    };
    auto pumpEvents = [&engine] {
        QElapsedTimer timer;
        timer.start();
        const int ms = std::uniform_int_distribution<int>(0, 6)(engine);
        while (timer.elapsed() < ms)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    };

    const int cycles = 120;
    int clears = 0;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        thread.Start(randomFiles());
        pumpEvents();
        if (chance(50)) {
            // Start while the body may be reading: the queue is swapped under it.
            thread.Start(randomFiles());
            pumpEvents();
        }
        if (chance(15)) {
            thread.Clear();
            ++clears;
            QVERIFY(!thread.isRunning());
        } else if (chance(35)) {
            // Let the body end, so that the next Start() begins a new one.
            QVERIFY(thread.wait(10000));
            QCoreApplication::processEvents();
        }
        // The list is only ever read under the lock; its contents are the host's.
        for (ZIImageDef* def : thread.ZIImageDefs())
            QVERIFY(Host()->Made(def));
    }

    // A final run with a well-behaved host reads everything, in order.
    thread.Clear();
    Host()->SetFaults(false);
    QStringList last;
    for (int i = 0; i < 15; ++i)
        last << QStringLiteral("img_last_%1.jpg").arg(i);
    Host()->ResetCalls();
    const int donesBefore = receiver.m_dones;
    thread.Start(last);
    QTRY_VERIFY_WITH_TIMEOUT(receiver.m_dones > donesBefore, 10000);
    QVERIFY(thread.wait(10000));
    QCOMPARE(Host()->Calls(), last);
    const QList<ZIImageDef*> defs = thread.ZIImageDefs();
    QCOMPARE(defs.size(), last.size());
    for (int i = 0; i < defs.size(); ++i)
        QCOMPARE(static_cast<TestImageDef*>(defs.at(i))->path(), last.at(i));

    // Every body that began also ended, and the receivers saw only host definitions.
    QCoreApplication::processEvents();
    QCOMPARE(receiver.m_starts, receiver.m_dones);
    QVERIFY(receiver.m_starts >= 2);
    QVERIFY(receiver.m_loadeds > 0);
    QVERIFY(receiver.m_readDefinitions > 0);
    QCOMPARE(receiver.m_foreign, 0);
    qInfo("%d cycles, %d clears, %d bodies, %d Loaded()", cycles, clears, receiver.m_starts,
        receiver.m_loadeds);
    thread.Clear();
}

ZPH_READING_TEST_MAIN(tst_ReadingThreadStress)
#include "tst_ReadingThreadStress.moc"

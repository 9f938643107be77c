// A host application for the reading thread's tests: a QApplication that
// answers qt_metacast("ZIApplication") and reads "images" by their names:
//   a name containing "null" is unreadable (null definition),
//   "throwint" throws an int, "throw" throws std::runtime_error,
//   "block" waits at the gate until the test opens it;
// anything else yields a TestImageDef carrying the path. In fault mode every
// call sleeps a few random milliseconds and fails now and then.
// Bookkeeping is guarded by std::mutex so that ThreadSanitizer sees it.
#pragma once

#include "TestImageDef.h"
#include "ZIApplication.h"

#include <QApplication>
#include <QList>
#include <QStringList>
#include <QTest>

#include <condition_variable>
#include <mutex>
#include <set>

class QThread;

class ReadingTestHost : public QApplication, public ZIApplication
{
    Q_OBJECT
    Q_INTERFACES(ZIApplication)

public:
    ReadingTestHost(int& argc, char** argv);
    /// Deletes every definition it made: the host owns them.
    ~ReadingTestHost() override;

    QString DefaultFolder() override { return QString(); }
    void SetDefaultFolder(const QString&) override { }
    QVariant GetSetting(const QString&, const QString&, const QVariant& value) override
    {
        return value;
    }
    void SetSetting(const QString&, const QString&, const QVariant&) override { }
    QLocale Locale() override { return QLocale::c(); }
    void LoadTranslation(const QString&) override { }
    ZIImageDef* CreateImageDef(const QString& path) override;
    void ImportStructuredPanorama(const StructuredPanoramaProperties&) override { }
    ZUIInstances* UIInstances() override { return nullptr; }

    /// Forgets the calls recorded so far; only while no reading runs.
    void ResetCalls();
    /// The paths asked for, in call order.
    QStringList Calls() const;
    /// The threads on which CreateImageDef ran, one entry per call.
    QList<QThread*> CallThreads() const;
    /// Whether `def` is a live definition made by this host.
    bool Made(ZIImageDef* def) const;

    /// Random sleeps, throws and null results; only while no reading runs.
    void SetFaults(bool on);

    /// Waits until a "block" call has arrived at the gate.
    void WaitUntilBlocked();
    /// Lets one "block" call through.
    void OpenGate();

private:
    mutable std::mutex m_lock;
    QStringList m_calls;
    QList<QThread*> m_callThreads;
    std::set<ZIImageDef*> m_made;
    bool m_faults = false;

    std::mutex m_gateLock;
    std::condition_variable m_gateChanged;
    int m_arrived = 0;
    int m_opened = 0;
};

/// main() for a suite that needs the test host as its application object.
#define ZPH_READING_TEST_MAIN(TestObject)                                                          \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        ReadingTestHost host(argc, argv);                                                          \
        TestObject test;                                                                           \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

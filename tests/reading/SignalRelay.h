// Records a ReadingThread's signals on the GUI thread. The connections are
// queued (the relay lives on the GUI thread), as the pages connect them, so
// the spies below are only ever touched on the GUI thread.
#pragma once

#include <QObject>
#include <QStringList>

class ReadingThread;

class SignalRelay : public QObject
{
    Q_OBJECT

public:
    explicit SignalRelay(ReadingThread* thread);

    /// "Start", "Loaded" and "Done" in the order they arrived.
    QStringList m_events;

signals:
    void Loaded();
    void Started();
    void Done();

private slots:
    void OnLoaded();
    void OnStart();
    void OnDone();
};

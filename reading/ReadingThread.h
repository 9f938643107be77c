// ReadingThread: reads the user's photographs into the host's image
// definitions on a background thread, one thread per page. The host makes each
// definition (ZIApplication::CreateImageDef) on this thread; the pages collect
// the results through ZIImageDefs() when Loaded() reaches them.
#pragma once

#include <QList>
#include <QMutex>
#include <QQueue>
#include <QString>
#include <QStringList>
#include <QThread>

class ZIImageDef;

class ReadingThread : public QThread
{
    Q_OBJECT

public:
    /// Empty queue and list; the stop flag is set until the body starts.
    explicit ReadingThread(QObject* parent = nullptr);
    /// Neither stops nor waits: the owner calls Clear() first whenever the
    /// thread may be running. Image definitions are never deleted here.
    ~ReadingThread() override;

    /// GUI thread. Forgets the definitions read so far, queues `files` (a path
    /// given twice is read once, at its first position) and starts the thread.
    /// A running body goes on with the new queue instead of restarting.
    void Start(const QStringList& files);

    /// A copy of the definitions read since the last Start or Clear, in reading
    /// order, taken under the lock. Never call it from a direct connection to
    /// Loaded(): the lock is held while Loaded() is emitted.
    QList<ZIImageDef*> ZIImageDefs();

signals:
    /// After every 10th definition and after the one that empties the queue.
    /// Emitted with the lock held: connect receivers with a queued connection.
    void Loaded();
    /// When the body begins.
    void Start();
    /// When the body ends, normally or on request.
    void Done();

public slots:
    /// Empties the queue and the list, asks the body to stop, and blocks until
    /// it has ended. The file being read when this is called is finished, and
    /// its definition lands in the emptied list.
    void Clear();

protected:
    void run() override;

private:
    QMutex m_mutex;
    bool m_stop;
    QQueue<QString> m_queue;
    QList<ZIImageDef*> m_imageDefs;
};

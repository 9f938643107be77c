// Reading many photographs on the pool: the order of the paths is kept,
// unreadable files give null with their reason, the progress is reported on
// the calling thread up to the total, and an empty list is read at once.
#include "ParallelPhotoReader.h"
#include "PhotoFixture.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

struct Call
{
    int done;
    int total;
    QThread* thread;
};

} // namespace

class tst_ParallelPhotoReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keepsOrderAndTellsWhy();
    void progressReachesTotal();
    void readsNoPaths();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }
    void writePhoto(const QString& name, int focal);
    void writeBytes(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_dir;
    /// Paths in reading order, with the focal length written or 0 for a file
    /// that cannot be read and the reason expected for it.
    QStringList m_paths;
    QVector<int> m_focals;
    QStringList m_reasons;
};

void tst_ParallelPhotoReader::writePhoto(const QString& name, int focal)
{
    PhotoFixture f;
    f.size = QSize(320, 240);
    f.seed = focal;
    f.focalNum = focal;
    f.focalDen = 1;
    QVERIFY2(f.write(path(name)), qPrintable(f.errorString()));
}

void tst_ParallelPhotoReader::writeBytes(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void tst_ParallelPhotoReader::initTestCase()
{
    QVERIFY(m_dir.isValid());
    // Unreadable files are refused with a logged reason; keep the log readable.
    if (qEnvironmentVariableIsEmpty("ZPH_TEST_VERBOSE"))
        QLoggingCategory::setFilterRules(QStringLiteral("zph.host.image.warning=false"));

    for (int i = 0; i < 24; ++i) {
        const QString name = QStringLiteral("photo%1.jpg").arg(i);
        writePhoto(name, 10 + i);
        m_paths << path(name);
        m_focals << 10 + i;
        m_reasons << QString();
    }
    QFile whole(path("photo0.jpg"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray jpeg = whole.readAll();
    // A JPEG whose frame header declares 65000 × 65000 pixels.
    QByteArray huge = jpeg;
    const int sof = huge.indexOf("\xFF\xC0");
    QVERIFY(sof > 0);
    for (int at : { sof + 5, sof + 7 }) {
        huge[at] = char(65000 >> 8);
        huge[at + 1] = char(65000 & 0xFF);
    }
    writeBytes("empty.jpg", QByteArray());
    writeBytes("notes.jpg", "This is not a photograph.\n");
    writeBytes("cut.jpg", jpeg.left(jpeg.size() * 2 / 3));
    writeBytes("huge.jpg", huge);

    // The unreadable files among the readable ones.
    const struct
    {
        int at;
        const char* name;
        const char* reason;
    } unreadable[] = {
        { 0, "missing.jpg", "no such file" },
        { 5, "empty.jpg", "empty file" },
        { 9, "notes.jpg", "not a picture" },
        { 14, "cut.jpg", "cut short" },
        { 20, "huge.jpg", "too large" },
    };
    for (const auto& u : unreadable) {
        m_paths.insert(u.at, path(QString::fromLatin1(u.name)));
        m_focals.insert(u.at, 0);
        m_reasons.insert(u.at, QString::fromLatin1(u.reason));
    }
}

void tst_ParallelPhotoReader::keepsOrderAndTellsWhy()
{
    QStringList reasons { QStringLiteral("left over") };
    const QVector<QSharedPointer<ImageDefinition>> defs
        = ParallelPhotoReader::read(m_paths, {}, &reasons);
    QCOMPARE(defs.size(), m_paths.size());
    QCOMPARE(reasons, m_reasons);
    for (int i = 0; i < m_paths.size(); ++i) {
        if (m_focals[i] == 0) {
            QVERIFY2(defs[i].isNull(), qPrintable(m_paths[i]));
            continue;
        }
        QVERIFY2(!defs[i].isNull(), qPrintable(m_paths[i]));
        QCOMPARE(defs[i]->Path(), m_paths[i]);
        QCOMPARE(defs[i]->FocalLength(), float(m_focals[i]));
        QCOMPARE(defs[i]->ThumbnailImage().size(), QSize(192, 144));
    }
}

void tst_ParallelPhotoReader::progressReachesTotal()
{
    // Every path several times over, so the pool is busy for a while.
    QStringList paths;
    for (int round = 0; round < 6; ++round)
        paths << m_paths;
    QVector<Call> calls;
    const QVector<QSharedPointer<ImageDefinition>> defs
        = ParallelPhotoReader::read(paths, [&calls](int done, int total) {
              calls.append({ done, total, QThread::currentThread() });
          });
    QCOMPARE(defs.size(), paths.size());
    QVERIFY(!calls.isEmpty());
    int previous = 0;
    for (const Call& call : calls) {
        QCOMPARE(call.thread, QThread::currentThread());
        QCOMPARE(call.total, paths.size());
        QVERIFY(call.done >= previous);
        QVERIFY(call.done <= call.total);
        previous = call.done;
    }
    QCOMPARE(calls.last().done, paths.size());
    int read = 0;
    for (const auto& def : defs)
        read += def.isNull() ? 0 : 1;
    QCOMPARE(read, 6 * 24);
}

void tst_ParallelPhotoReader::readsNoPaths()
{
    QVector<Call> calls;
    QStringList reasons { QStringLiteral("left over") };
    const QVector<QSharedPointer<ImageDefinition>> defs = ParallelPhotoReader::read(
        QStringList(),
        [&calls](int done, int total) {
            calls.append({ done, total, QThread::currentThread() });
        },
        &reasons);
    QVERIFY(defs.isEmpty());
    QVERIFY(reasons.isEmpty());
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0].done, 0);
    QCOMPARE(calls[0].total, 0);
}

QTEST_GUILESS_MAIN(tst_ParallelPhotoReader)
#include "tst_ParallelPhotoReader.moc"

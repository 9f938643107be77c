#include "BatchCommand.h"

#include "ExitCode.h"
#include "ImportCommand.h"
#include "StopSignals.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QXmlStreamReader>

namespace {

/// One shoot of the batch: its name in the summary and its import arguments.
struct Shoot
{
    QString name;
    QStringList arguments;
    /// Why the shoot cannot even be imported; empty when it can.
    QString problem;
};

struct Outcome
{
    QString name;
    int code = ExitCode::Done;
    QString reason;
};

/// The head a record file is for, by its content; empty when it is none.
QString headOfRecord(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    const QByteArray text = file.read(1 << 20);
    if (path.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive))
        return text.contains("op_shoot") ? QStringLiteral("clauss") : QString();
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            return reader.name() == QLatin1String("preset") ? QStringLiteral("vrdrive2")
                                                            : QStringLiteral("papywizard");
    }
    return QStringLiteral("papywizard");
}

/// The shoots of a list file: one import's arguments per line, "#" starts
/// a comment, empty lines are skipped.
bool readList(const QString& path, QVector<Shoot>* shoots, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = QStringLiteral("cannot read the list %1: %2").arg(path, file.errorString());
        return false;
    }
    int number = 0;
    while (!file.atEnd()) {
        ++number;
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        Shoot shoot;
        shoot.name = QStringLiteral("%1:%2").arg(QFileInfo(path).fileName()).arg(number);
        shoot.arguments = QProcess::splitCommand(line);
        if (shoot.arguments.value(0) == QLatin1String("import"))
            shoot.arguments.removeFirst();
        shoots->append(shoot);
    }
    return true;
}

QString lastLine(const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last();
}

} // namespace

bool BatchCommand::shootArguments(const QString& folder, QStringList* arguments, QString* error)
{
    const QDir dir(folder);
    QStringList records;
    QString head;
    for (const QFileInfo& entry :
        dir.entryInfoList({ QStringLiteral("*.xml"), QStringLiteral("*.txt") }, QDir::Files)) {
        const QString kind = headOfRecord(entry.absoluteFilePath());
        if (kind.isEmpty())
            continue;
        records << entry.absoluteFilePath();
        head = kind;
    }
    if (records.size() > 1) {
        *error = QStringLiteral("the shoot %1 holds more than one record: %2")
                     .arg(folder, records.join(QStringLiteral(", ")));
        return false;
    }
    if (records.isEmpty())
        *arguments
            = QStringList { QStringLiteral("gigapan"), QStringLiteral("--name"), dir.dirName() };
    else
        *arguments = QStringList { head, records.first() };
    *arguments << dir.absolutePath();
    return true;
}

QString BatchCommand::help()
{
    return QString::fromUtf8(
               "Usage: panohead batch [options] <folder of shoots | list file>... [-- <import "
               "options>]\n"
               "\n"
               "Imports many shoots in one call, and with --stitch stitches each, going on past\n"
               "a shoot that fails; a table of every shoot's outcome ends the run.\n"
               "\n"
               "A folder of shoots: every sub-folder is a shoot holding its photographs and at\n"
               "most one record, whose content names the head (a Papywizard record or a VR\n"
               "Drive 2 preset, .xml; a Clauss script, .txt); a folder without a record is a\n"
               "Gigapan grid named after the folder. The files are written into the shoot's\n"
               "folder, or into <output>/<shoot> with --output.\n"
               "A list file: one shoot per line, the arguments of \"panohead import\" (an\n"
               "argument with spaces in double quotes; \"#\" starts a comment), e.g.\n"
               "  papywizard shoots/a/shoot.xml shoots/a --focal 24 -o out/a\n"
               "\n"
               "Options:\n"
               "  -o, --output <folder>  where a folder's shoots are written (a sub-folder each)\n"
               "  --stitch               stitch every shoot that imported well\n"
               "  --tools <folder>       with --stitch: where Hugin's programs are\n"
               "  --force                replace existing outputs\n"
               "  -h, --help             this text\n"
               "Options after \"--\" go to every import (e.g. -- --focal 24).\n"
               "\n"
               "The exit code is 0 when every shoot was done, else that of the first shoot\n"
               "that failed; a stop by Ctrl-C or SIGTERM ends the batch.\n")
        + QLatin1String(ExitCode::Table());
}

int BatchCommand::run(const QStringList& arguments, Console& console)
{
    const int separator = arguments.indexOf(QStringLiteral("--"));
    const QStringList own = separator < 0 ? arguments : QStringList(arguments.mid(0, separator));
    const QStringList common
        = separator < 0 ? QStringList() : QStringList(arguments.mid(separator + 1));
    QCommandLineParser parser;
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") }, QString());
    const QCommandLineOption output(
        { QStringLiteral("o"), QStringLiteral("output") }, QString(), QStringLiteral("folder"));
    const QCommandLineOption stitch(QStringLiteral("stitch"), QString());
    const QCommandLineOption tools(QStringLiteral("tools"), QString(), QStringLiteral("folder"));
    const QCommandLineOption force(QStringLiteral("force"), QString());
    parser.addOptions({ help, output, stitch, tools, force });
    const auto usage = [&console](const QString& message) {
        console.err << "panohead batch: " << message << " (see panohead batch --help)\n";
        console.err.flush();
        return ExitCode::UsageError;
    };
    if (!parser.parse(QStringList { QStringLiteral("panohead-batch") } + own))
        return usage(parser.errorText());
    if (parser.isSet(help)) {
        console.out << BatchCommand::help();
        console.out.flush();
        return ExitCode::Done;
    }
    if (parser.positionalArguments().isEmpty())
        return usage(QStringLiteral("give a folder of shoots or a list file"));
    if (parser.isSet(tools) && !parser.isSet(stitch))
        return usage(QStringLiteral("--tools goes with --stitch"));

    QVector<Shoot> shoots;
    for (const QString& source : parser.positionalArguments()) {
        const QFileInfo info(source);
        QString error;
        if (info.isDir()) {
            const QDir folder(source);
            const QFileInfoList entries
                = folder.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
            for (const QFileInfo& entry : entries) {
                if (entry.fileName().endsWith(QLatin1String(".stitch")))
                    continue;
                Shoot shoot;
                shoot.name = entry.fileName();
                if (!shootArguments(entry.absoluteFilePath(), &shoot.arguments, &shoot.problem))
                    shoot.arguments.clear();
                else if (parser.isSet(output))
                    shoot.arguments << QStringLiteral("-o")
                                    << QDir(parser.value(output)).filePath(entry.fileName());
                else
                    shoot.arguments << QStringLiteral("-o") << entry.absoluteFilePath();
                shoots << shoot;
            }
        } else if (info.isFile()) {
            if (!readList(source, &shoots, &error)) {
                console.err << "panohead batch: " << error << '\n';
                console.err.flush();
                return ExitCode::InputError;
            }
        } else {
            console.err << "panohead batch: no such folder of shoots or list file: " << source
                        << '\n';
            console.err.flush();
            return ExitCode::InputError;
        }
    }
    if (shoots.isEmpty()) {
        console.err << "panohead batch: no shoots in "
                    << parser.positionalArguments().join(QStringLiteral(", ")) << '\n';
        console.err.flush();
        return ExitCode::InputError;
    }

    QVector<Outcome> outcomes;
    for (int i = 0; i < shoots.size(); ++i) {
        const Shoot& shoot = shoots[i];
        console.out
            << QStringLiteral("== Shoot %1/%2: %3\n").arg(i + 1).arg(shoots.size()).arg(shoot.name);
        console.out.flush();
        Outcome outcome;
        outcome.name = shoot.name;
        if (!shoot.problem.isEmpty()) {
            outcome.code = ExitCode::InputError;
            outcome.reason = shoot.problem;
            console.err << "panohead batch: " << shoot.problem << '\n';
            console.err.flush();
        } else {
            QStringList importArguments = shoot.arguments + common;
            if (parser.isSet(force))
                importArguments << QStringLiteral("--force");
            if (parser.isSet(stitch)) {
                importArguments << QStringLiteral("--stitch");
                if (parser.isSet(tools))
                    importArguments << QStringLiteral("--tools") << parser.value(tools);
            }
            QString errors;
            QTextStream err(&errors);
            Console shootConsole { console.out, err, console.interactive };
            outcome.code = ImportCommand::run(importArguments, shootConsole);
            err.flush();
            console.err << errors;
            console.err.flush();
            outcome.reason = lastLine(errors);
        }
        outcomes << outcome;
        if (StopSignals::received())
            break;
    }

    int failed = 0;
    int code = ExitCode::Done;
    int width = 5;
    for (const Outcome& o : outcomes) {
        width = qMax(width, o.name.size());
        if (o.code != ExitCode::Done) {
            ++failed;
            if (code == ExitCode::Done)
                code = o.code;
        }
    }
    if (StopSignals::received())
        code = StopSignals::exitCode();
    console.out << QStringLiteral("\nBatch: %1 of %2 shoots done, %3 failed%4\n")
                       .arg(outcomes.size() - failed)
                       .arg(shoots.size())
                       .arg(failed)
                       .arg(outcomes.size() < shoots.size()
                               ? QStringLiteral(", %1 not started (stopped)")
                                     .arg(shoots.size() - outcomes.size())
                               : QString());
    console.out << QStringLiteral("%1  %2  %3  %4\n")
                       .arg(QStringLiteral("shoot"), -width)
                       .arg(QStringLiteral("result"), -6)
                       .arg(QStringLiteral("exit"), -4)
                       .arg(QStringLiteral("reason"));
    for (const Outcome& o : outcomes) {
        const QString row
            = QStringLiteral("%1  %2  %3  %4")
                  .arg(o.name, -width)
                  .arg(o.code == ExitCode::Done ? QStringLiteral("done") : QStringLiteral("failed"),
                      -6)
                  .arg(o.code, -4)
                  .arg(o.reason);
        console.out << row.trimmed() << '\n';
    }
    console.out.flush();
    return code;
}

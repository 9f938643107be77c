// Stand-ins for Hugin's programs: small shell scripts that read the command
// line as the real programs do ("-o <output>", "-i <image>", the input last)
// and behave well or, one at a time, badly.
#pragma once

#include <QDir>
#include <QFile>
#include <QMap>
#include <QString>

namespace StandInTools {

/// Writes an executable script at path: the argument parsing above, then body.
inline bool writeScript(const QString& path, const QString& body)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("#!/bin/sh\nout=; prev=; last=; images=\n"
               "for a in \"$@\"; do\n"
               "  [ \"$prev\" = \"-o\" ] && out=\"$a\"\n"
               "  [ \"$prev\" = \"-i\" ] && images=\"$images $a\"\n"
               "  prev=\"$a\"; last=\"$a\"\n"
               "done\n");
    file.write(body.toUtf8());
    file.write("\n");
    file.close();
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// A 100 × 50 TIFF header written to $out: what a blender's stand-in writes.
const QString TiffHeader
    = QStringLiteral("printf '\\111\\111\\052\\000\\010\\000\\000\\000\\002\\000"
                     "\\000\\001\\003\\000\\001\\000\\000\\000\\144\\000\\000\\000"
                     "\\001\\001\\003\\000\\001\\000\\000\\000\\062\\000\\000\\000"
                     "\\000\\000\\000\\000' > \"$out\"");

/// What each stand-in does when it behaves: the project passes through, the
/// control point finder adds one point between the linked stacks 0 and 1,
/// the canvas gets a 100 × 50 crop, nona writes its pictures one after the
/// other (OpenEXR ones when asked for them), each "xx" in two parts a moment
/// apart, the blenders and
/// the exposure fuser a 100 × 50 TIFF header, the HDR merger one byte.
inline QMap<QString, QString> wellBehaved()
{
    return {
        { QStringLiteral("cpfind"),
            QStringLiteral("cp \"$last\" \"$out\"; echo 'c n0 N1 x1 y1 X2 Y2 t0' >> \"$out\"") },
        { QStringLiteral("cpclean"), QStringLiteral("cp \"$last\" \"$out\"") },
        { QStringLiteral("autooptimiser"), QStringLiteral("cp \"$last\" \"$out\"") },
        { QStringLiteral("pano_modify"),
            QStringLiteral("sed 's/^p \\(.*\\)$/p \\1 S0,100,0,50/' \"$last\" > \"$out\"") },
        { QStringLiteral("nona"),
            QStringLiteral("ext=tif; case \"$*\" in *EXR_m*) ext=exr;; esac\n"
                           "for i in $images; do f=$(printf '%s%04d.%s' \"$out\" \"$i\" $ext)\n"
                           "  printf x > \"$f\"; sleep 0.05; printf x >> \"$f\"\n"
                           "done") },
        { QStringLiteral("enblend"), TiffHeader },
        { QStringLiteral("verdandi"), TiffHeader },
        { QStringLiteral("enfuse"), TiffHeader },
        { QStringLiteral("hugin_hdrmerge"), QStringLiteral("printf x > \"$out\"") },
    };
}

/// Writes the well-behaved stand-ins into folder, with changes (tool to
/// script body) replacing some; an empty body leaves that tool out.
inline bool make(const QString& folder, const QMap<QString, QString>& changes)
{
    if (!QDir().mkpath(folder))
        return false;
    QMap<QString, QString> tools = wellBehaved();
    for (auto it = changes.constBegin(); it != changes.constEnd(); ++it)
        tools[it.key()] = it.value();
    for (auto it = tools.constBegin(); it != tools.constEnd(); ++it) {
        if (!it.value().isEmpty() && !writeScript(QDir(folder).filePath(it.key()), it.value()))
            return false;
    }
    return true;
}

/// True while pid names a process that has not ended (a zombie has ended).
inline bool processRuns(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = stat.readAll();
    // "pid (name) S ...": the state follows the name's closing parenthesis.
    const int close = text.lastIndexOf(')');
    return close >= 0 && close + 2 < text.size() && text.at(close + 2) != 'Z';
}

} // namespace StandInTools

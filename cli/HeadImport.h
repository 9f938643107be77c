// HeadImport: the command line's import of one shoot: collects the
// photographs, reads them, checks them against the head's record, chooses the
// focal length and lens, runs the head's converter with the user's choices and
// puts together what the exports need. The decisions it shares with the
// import pages (options, focal and lens, bracketing, the Gigapan grid) are the
// import library's; where the command line deliberately differs (a
// photograph without a focal length is left out of the mean and named), the
// rule is also the import library's.
#pragma once

#include "Console.h"
#include "ExportInput.h"
#include "Head.h"
#include "ImportOptions.h"

#include <QString>
#include <QStringList>

struct ImportRequest
{
    Head head = Head::Papywizard;
    /// The head's record (every head but Gigapan).
    QString record;
    /// Photographs and folders of photographs, as given.
    QStringList photoArguments;
    /// "name" (sorted by name), "given" (as given) or "time" (EXIF shooting time).
    QString photoOrder = QStringLiteral("name");
    /// "auto", "images", "record" or a length in millimetres.
    QString focal = QStringLiteral("auto");
    /// "auto", "standard", "fisheye", "images" or "record".
    QString lens = QStringLiteral("auto");
    /// "Inverse Y coordinates".
    bool invertPitch = false;
    /// Degrees, a multiple of 90, added to every shot's roll (Papywizard, VR Drive 2).
    int rotate = 0;
    /// Gigapan grid: rows (0: as the page proposes), photographs per
    /// position, photographs skipped at the start, shooting order, 360°.
    int rows = 0;
    int bracket = 1;
    /// --bracket was given: for Papywizard and VR Drive 2 it replaces the
    /// bracketing the record states or its shots' numbers give.
    bool bracketGiven = false;
    int skip = 0;
    int order = 0;
    bool force360 = false;
    ImportOptions options;
};

struct ImportOutcome
{
    ExportInput input;
    /// What was imported, one or more lines.
    QString summary;
};

class HeadImport
{
public:
    /// The pictures a folder argument contributes, by suffix (lower case).
    static const QStringList PhotoSuffixes;

    /// Runs the import; progress goes to console.out. False with the reason
    /// (one line, naming the file) in *error.
    static bool Run(
        const ImportRequest& request, Console& console, ImportOutcome* outcome, QString* error);

    /// "1 shot", "3 shots".
    static QString CountText(int n, const char* one, const char* many);
};

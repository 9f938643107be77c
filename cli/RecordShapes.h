// RecordShapes: the command line's tolerant reading of Papywizard and VR Drive 2
// records, in front of the shared reader. Head software writes these records
// in more shapes than the complete one: cut off after the last shot of a run
// that stopped half-way, without a header, with the exposure index of each
// shot in `bracket` (or `num`) and with the camera's roll on each `position`.
// This step finds what the shared reader does not keep (the shots' own
// numbers and roll, whether the document ends early) and hands the reader a
// document it can read; the reader's own bounds (size, entities, nesting)
// still apply to it.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

class RecordShapes
{
public:
    /// What the record says of one shot beyond what the shared reader keeps.
    struct Shot
    {
        /// The `id` attribute as written; empty when missing.
        QString id;
        bool hasBracket = false;
        /// The `bracket` attribute, or `num` when `bracket` is missing.
        bool hasNumber = false;
        /// The exposure index as a number; 0 when it is not one.
        int number = 0;
        /// The `roll` attribute of the shot's `position`, in degrees.
        bool hasRoll = false;
        double roll = 0.0;
        /// Where the shot points, in degrees (filled by the caller from the
        /// shared reader; used to tell exposure indices from shot counters).
        float yaw = 0.0f;
        float pitch = 0.0f;
    };

    /// Scans the record at path. False only when the file cannot be opened;
    /// a document this step cannot make sense of (too large, declaring
    /// entities, too deep, not XML) is left as it is for the shared reader
    /// to refuse.
    bool read(const QString& path);

    /// True when the document ends after at least one complete shot but
    /// before its root element is closed, and this step has closed it after
    /// its last complete shot.
    bool cutOff() const { return m_cutOff; }
    /// The document to hand to the shared reader when cutOff(): the record up
    /// to the end of its last complete shot, followed by the closing tags of
    /// the elements still open there. UTF-8.
    QByteArray closedDocument() const { return m_closed; }
    /// The complete shots, in document order: the `pict` elements of the
    /// first `shoot` element of the root, as the shared reader takes them.
    QVector<Shot>& shots() { return m_shots; }
    const QVector<Shot>& shots() const { return m_shots; }

    /// The bracketing the shots' own numbers give, for a record without a
    /// `bracketing` element.
    struct Bracketing
    {
        /// Pictures per position; 1 when the shots carry no numbers.
        int count = 1;
        /// True when count comes from the shots' numbers.
        bool fromNumbers = false;
        /// Shots that make whole positions; the rest (an incomplete last
        /// position of a record that ends early) are left out.
        int usedShots = 0;
        /// Why the numbers cannot be read as a bracketing; empty when they can.
        QString error;
    };

    /// Reads the bracketing from the shots' numbers, which must run 1...n at
    /// every position. A single run of numbers over shots at different
    /// positions counts shots, not exposures: bracketing 1. cutOff: an
    /// incomplete last position is left out rather than refused.
    static Bracketing BracketingFromNumbers(const QVector<Shot>& shots, bool cutOff);

    /// How a shot is named in messages: "shot 5 (id 12)", counted from 1.
    static QString ShotName(const QVector<Shot>& shots, int index);

    /// The roll, in degrees, the record gives the camera at a shot: the
    /// position's roll when written and not 0, else 90 for a record that says
    /// portrait, else 0.
    static double RecordedRoll(const Shot& shot, bool portrait);

    /// The part of a recorded roll left to apply to a photograph: a quarter
    /// turn is already in a photograph that stands in portrait as stored or
    /// through its orientation tag, so only the rest of the roll applies to it.
    static double RollLeft(double recordedRoll, bool photoStandsPortrait);

private:
    bool m_cutOff = false;
    QByteArray m_closed;
    QVector<Shot> m_shots;
};

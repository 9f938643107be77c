// ShootData: one shot as the head recorded it. Angles are degrees.
#pragma once

#include <QDateTime>
#include <QtGlobal>

struct ShootData
{
    /// Zero on construction; no converter sets it.
    qint64 m_reserved = 0;
    /// Yaw in degrees as recorded; grows to the right.
    float m_yaw = 0.0f;
    /// Pitch in degrees; positive up.
    float m_pitch = 0.0f;
    /// Roll in degrees.
    float m_roll = 0.0f;
    /// The shot's number in the head's file.
    qint32 m_id = 0;
    /// The shot's exposure index within its bracket, counted from 1.
    qint32 m_bracket = 0;
    /// When the shot was taken; invalid when unknown.
    QDateTime m_time;
};

#pragma once

#include <QMap>
#include <QPoint>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

// A curve between the readers and the writer: whole levels, nominally 0 to 255.
using point_list = QVector<QPoint>;

// Everything a preset file holds, as the file spelled it. The readers only move
// text into this record; the conversion decides what a key means. Keys are bare
// local names ("Shadows2012"), whatever table or namespace they stood in.
struct preset_settings
{
    QMap<QString, QString> settings;
    QString name;
    QString description;
    point_list tone_curve;
    point_list tone_curve_red;
    point_list tone_curve_green;
    point_list tone_curve_blue;
    // Lists of settings the reader dropped unread, by key or element name: a
    // template's lists of tables and an XMP preset's other develop elements (local
    // corrections, a look). Nothing converts them; they are named only so that a
    // report can tell what the preset loses.
    QStringList passed_over;
    // Keys of `settings` that an XMP file gave outside the develop settings'
    // namespace: a photo's metadata (Make, ExposureTime), no setting at all.
    QSet<QString> foreign_keys;
};

// The stored text if `key` is present, even when it is empty; else `default_value`.
QString value_or(const QMap<QString, QString>& settings, const QString& key,
                 const QString& default_value);

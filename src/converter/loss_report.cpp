#include "converter/loss_report.h"

#include "converter/batch_conversion.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

void loss_report::open(const QString& input)
{
    if (!index_.contains(input)) {
        index_.insert(input, entries_.size());
        entries_.append({input, QString(), QString(), QString(), {}, {}});
    }
}

loss_report::entry* loss_report::find(const QString& input)
{
    const auto it = index_.constFind(input);
    return it == index_.constEnd() ? nullptr : &entries_[it.value()];
}

void loss_report::note_warning(const QString& file, const QString& text)
{
    if (entry* e = find(file)) {
        e->warnings.append(text);
    }
}

void loss_report::note_error(const QString& file, const QString& text)
{
    entry* e = find(file);
    if (e != nullptr && e->first_error.isNull()) {
        e->first_error = text;
    }
}

void loss_report::set_lost(const QString& input, const QVector<lost_group>& lost)
{
    if (entry* e = find(input)) {
        e->lost = lost;
    }
}

void loss_report::set_style(const QString& input, const QString& location)
{
    if (entry* e = find(input)) {
        e->style = location;
    }
}

void loss_report::set_outcome(const QString& input, const QString& outcome)
{
    if (entry* e = find(input)) {
        e->outcome = outcome;
    }
}

void loss_report::unwrite_all(const QString& reason)
{
    for (entry& e : entries_) {
        if (e.outcome == QLatin1String("converted")) {
            e.style.clear();
            e.outcome = QStringLiteral("failed");
            e.first_error = reason;
        }
    }
}

QByteArray loss_report::json(const batch_summary& summary) const
{
    QJsonArray presets;
    for (const entry& e : entries_) {
        QJsonObject lost;
        for (const lost_group& group : e.lost) {
            lost.insert(group.heading, QJsonArray::fromStringList(group.keys));
        }
        QJsonObject preset{{QStringLiteral("input"), e.input},
                           {QStringLiteral("outcome"), e.outcome},
                           {QStringLiteral("lost"), lost},
                           {QStringLiteral("warnings"), QJsonArray::fromStringList(e.warnings)}};
        if (e.style.isEmpty()) {
            preset.insert(QStringLiteral("style"), QJsonValue::Null);
            // A skipped preset has no error: the warning that skipped it is its last.
            preset.insert(QStringLiteral("reason"), !e.first_error.isNull() ? e.first_error
                                                    : e.warnings.isEmpty()  ? QString()
                                                                            : e.warnings.last());
        } else {
            preset.insert(QStringLiteral("style"), e.style);
        }
        presets.append(preset);
    }
    const QJsonObject counts{{QStringLiteral("converted"), summary.converted},
                             {QStringLiteral("skipped"), summary.skipped},
                             {QStringLiteral("failed"), summary.failed}};
    return QJsonDocument(QJsonObject{{QStringLiteral("presets"), presets},
                                     {QStringLiteral("summary"), counts}})
        .toJson(QJsonDocument::Indented);
}

QString lost_line(const QVector<lost_group>& lost)
{
    QStringList parts;
    for (const lost_group& group : lost) {
        parts << group.heading + QStringLiteral(": ") + group.keys.join(QStringLiteral(", "));
    }
    return parts.join(QStringLiteral("; "));
}

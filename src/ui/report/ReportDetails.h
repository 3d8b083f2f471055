#pragma once

#include <QString>
#include <QStringList>

/// What stands at the head of a report: its title, and lines such as "Start Date = 01/03/2024".
struct ReportDetails {
    QString title;
    QStringList lines;

    /// Puts `other` behind these; its title counts where it has one.
    void add(const ReportDetails& other) {
        if (!other.title.isEmpty())
            title = other.title;
        lines += other.lines;
    }
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeWidget>

#include <vector>

// A report-style list: rows of texts under titled columns, kept in the order they are inserted (never
// sorted). Each column is a percentage of the list's width, recomputed whenever the list is resized.
class ReportList final : public QTreeWidget
{
    Q_OBJECT

public:
    struct Column
    {
        QString title;
        int percent = 0; // of the list's width: width x percent / 100
        int less = 0; // pixels taken off after the percentage
    };

    explicit ReportList(QWidget* parent = nullptr);

    void setColumns(std::vector<Column> columns);
    // Inserts a row at `index`, one text per column.
    void insertRow(int index, const QStringList& texts);
    void clearRows() { clear(); }
    int rowCount() const { return topLevelItemCount(); }
    QString text(int row, int column) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void sizeColumns();

    std::vector<Column> m_columns;
};

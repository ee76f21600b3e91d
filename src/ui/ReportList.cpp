// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ReportList.h"

#include <QHeaderView>
#include <QKeyEvent>

ReportList::ReportList(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("reportList"));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setSortingEnabled(false);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
}

void ReportList::setColumns(std::vector<Column> columns)
{
    m_columns = std::move(columns);
    QStringList titles;
    for (const Column& column : m_columns)
        titles << column.title;
    setColumnCount(static_cast<int>(m_columns.size()));
    setHeaderLabels(titles);
    sizeColumns();
}

void ReportList::insertRow(int index, const QStringList& texts)
{
    insertTopLevelItem(index, new QTreeWidgetItem(texts));
}

QString ReportList::text(int row, int column) const
{
    const QTreeWidgetItem* item = topLevelItem(row);
    return item ? item->text(column) : QString();
}

void ReportList::sizeColumns()
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        setColumnWidth(static_cast<int>(i), width() * m_columns[i].percent / 100 - m_columns[i].less);
}

void ReportList::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    sizeColumns();
}

void ReportList::keyPressEvent(QKeyEvent* event)
{
    // Up from the first row leaves the list, so the screen can move the focus to the control above.
    if (event->key() == Qt::Key_Up && currentIndex().row() <= 0) {
        event->ignore();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

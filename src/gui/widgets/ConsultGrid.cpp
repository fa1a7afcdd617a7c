#include "gui/widgets/ConsultGrid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QTimer>

namespace {

// The value as given is kept for the program; the cell shows it without its trailing blanks, which fixed-width
// tables store and which would only make the grid elide the text.
constexpr int ValueRole = Qt::UserRole + 1;

QTableWidgetItem* newItem(const QString& value, Qt::Alignment alignment)
{
    qsizetype end = value.size();
    while (end > 0 && value.at(end - 1) == QLatin1Char(' '))
        --end;
    auto* item = new QTableWidgetItem(value.left(end));
    item->setData(ValueRole, value);
    // Long texts (NCM descriptions) are elided in their column; the whole text shows on hover.
    if (end > 40)
        item->setToolTip(value.left(end));
    item->setTextAlignment(alignment);
    return item;
}

}  // namespace

int ConsultGrid::widthFor(const Column& column) const
{
    // The cell's and the title's margins, as the style draws them.
    const int margins = 2 * style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 12;
    const int value = column.widest.isEmpty() ? 0 : fontMetrics().horizontalAdvance(column.widest);
    const int title = horizontalHeader()->fontMetrics().horizontalAdvance(column.title);
    return qMax(value, title) + margins;
}

ConsultGrid::ConsultGrid(QWidget* parent) : QTableWidget(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSortingEnabled(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ConsultGrid::titleClicked);
    connect(this, &QTableWidget::currentCellChanged, this,
            [this](int row, int, int previousRow, int) {
                if (row != previousRow)
                    onCurrentChanged(row);
            });
    connect(this, &QTableWidget::cellClicked, this, [this](int row, int) {
        if (m_clickNeedsRowChange && !m_rowChangedSinceLoad)
            return;
        if (!m_filling && row >= 0)
            emit rowChosen(row);
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ConsultGrid::onSelectionChanged);
    // A wrapping column that changes width (the window resized, the last column stretched) re-fits its rows.
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        if (m_wrapColumns.contains(column))
            fitRowHeightsLater();
    });
}

// Each row as high as its longest wrapped value needs, and never lower than one line.
void ConsultGrid::fitRowHeights()
{
    m_fitPending = false;
    if (m_wrapColumns.isEmpty())
        return;
    const QFontMetrics metrics = fontMetrics();
    const int oneLine = verticalHeader()->defaultSectionSize();
    // The delegate's text margins on both sides.
    const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + 2;
    for (int r = 0; r < rowCount(); ++r) {
        int height = oneLine;
        for (int c : std::as_const(m_wrapColumns)) {
            const QTableWidgetItem* it = item(r, c);
            const int width = columnWidth(c) - margins;
            if (!it || width <= 0 || metrics.horizontalAdvance(it->text()) <= width)
                continue;
            const QRect needed =
                metrics.boundingRect(QRect(0, 0, width, 1 << 20), Qt::TextWordWrap | Qt::AlignLeft, it->text());
            height = qMax(height, needed.height() + oneLine - metrics.height());
        }
        if (rowHeight(r) != height)
            setRowHeight(r, height);
    }
}

void ConsultGrid::fitRowHeightsLater()
{
    if (m_fitPending)
        return;
    m_fitPending = true;
    QTimer::singleShot(0, this, &ConsultGrid::fitRowHeights);
}

void ConsultGrid::setColumns(const QList<Column>& columns)
{
    setColumnCount(columns.size());
    QStringList titles;
    for (const Column& c : columns)
        titles << c.title;
    setHorizontalHeaderLabels(titles);
    m_wrapColumns.clear();
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i).wrap && columns.at(i).width > 0)
            m_wrapColumns << i;
        setColumnHidden(i, columns.at(i).width == 0);
        if (columns.at(i).width > 0)
            setColumnWidth(i, qMax(columns.at(i).width, widthFor(columns.at(i))));
        horizontalHeaderItem(i)->setData(Qt::UserRole, int(columns.at(i).alignment));
    }
    setWordWrap(!m_wrapColumns.isEmpty());
}

void ConsultGrid::clearRows()
{
    m_rowChangedSinceLoad = false;
    m_filling = true;
    setRowCount(0);
    m_order.clear();
    m_filling = false;
}

void ConsultGrid::addRow(const QStringList& cells)
{
    m_filling = true;
    const int row = rowCount();
    insertRow(row);
    for (int c = 0; c < columnCount(); ++c) {
        setItem(row, c,
                newItem(c < cells.size() ? cells.at(c) : QString(),
                        Qt::Alignment(horizontalHeaderItem(c)->data(Qt::UserRole).toInt())));
    }
    m_filling = false;
    fitRowHeightsLater();
}

void ConsultGrid::setRows(const QList<QStringList>& rows)
{
    m_rowChangedSinceLoad = false;
    m_filling = true;
    setUpdatesEnabled(false);
    clearSelection();
    setRowCount(0);
    m_order.clear();
    setRowCount(rows.size());
    const int columns = columnCount();
    QList<Qt::Alignment> alignment;
    for (int c = 0; c < columns; ++c)
        alignment << Qt::Alignment(horizontalHeaderItem(c)->data(Qt::UserRole).toInt());
    for (int r = 0; r < rows.size(); ++r) {
        const QStringList& cells = rows.at(r);
        for (int c = 0; c < columns; ++c) {
            setItem(r, c, newItem(c < cells.size() ? cells.at(c) : QString(), alignment.at(c)));
        }
    }
    if (!rows.isEmpty()) {
        // The first row becomes current and highlighted; on a grid of several picks it is the one picked.
        int column = 0;
        while (column < columns - 1 && isColumnHidden(column))
            ++column;
        const QModelIndex first = model()->index(0, column);
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    fitRowHeights();
    setUpdatesEnabled(true);
    m_filling = false;
}

QString ConsultGrid::cellText(int row, int column) const
{
    const QTableWidgetItem* it = item(row, column);
    return it ? it->data(ValueRole).toString() : QString();
}

QString ConsultGrid::currentText(int column) const
{
    return currentRow() >= 0 ? cellText(currentRow(), column) : QString();
}

QStringList ConsultGrid::rowTexts(int row) const
{
    QStringList cells;
    for (int c = 0; c < columnCount(); ++c)
        cells << cellText(row, c);
    return cells;
}

void ConsultGrid::clearCurrentRow()
{
    m_filling = true;
    clearSelection();
    // Through the view, so that the grid does not make its first row current when it gets the focus.
    setCurrentIndex(QModelIndex());
    m_filling = false;
}

void ConsultGrid::clearHighlight()
{
    m_filling = true;
    clearSelection();
    m_filling = false;
}

void ConsultGrid::setMultiSelection(bool on)
{
    m_multi = on;
    setSelectionMode(on ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

QList<int> ConsultGrid::pickedRows() const
{
    if (!m_multi)
        return currentRow() >= 0 ? QList<int>{currentRow()} : QList<int>{};
    return m_order;
}

QStringList ConsultGrid::pickedTexts(int column) const
{
    QStringList texts;
    for (int row : pickedRows())
        texts << cellText(row, column);
    return texts;
}

void ConsultGrid::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Enter works as a click on the row, or as Ok; it must not reach the dialog's default button.
        if (currentRow() >= 0) {
            // The row acted on is the row highlighted.
            if (!m_multi)
                selectOnly(currentRow());
            if (m_enterActivates)
                emit rowActivated(currentRow());
            else
                emit rowChosen(currentRow());
        }
        event->accept();
        return;
    case Qt::Key_Escape:
        emit escapePressed();
        event->accept();
        return;
    default:
        break;
    }
    QTableWidget::keyPressEvent(event);
    // With Shift held the selection goes back to the whole current row (the chooser alone picks several).
    if (!m_multi && (event->modifiers() & Qt::ShiftModifier) && currentRow() >= 0)
        selectOnly(currentRow());
}

void ConsultGrid::mouseReleaseEvent(QMouseEvent* event)
{
    QTableWidget::mouseReleaseEvent(event);
    // A drag never selects several rows.
    if (!m_multi && currentRow() >= 0)
        selectOnly(currentRow());
}

void ConsultGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableWidget::mouseDoubleClickEvent(event);
    const int row = rowAt(event->position().toPoint().y());
    if (row >= 0 && event->button() == Qt::LeftButton)
        emit rowActivated(row);
}

void ConsultGrid::onCurrentChanged(int row)
{
    if (m_filling || row < 0)
        return;
    m_rowChangedSinceLoad = true;
    if (!m_multi)
        selectOnly(row);
    emit rowChosen(row);
}

void ConsultGrid::onSelectionChanged()
{
    if (!m_multi)
        return;
    QList<int> selected;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        selected << index.row();
    QList<int> order;
    for (int row : std::as_const(m_order))
        if (selected.contains(row))
            order << row;
    std::sort(selected.begin(), selected.end());
    for (int row : std::as_const(selected))
        if (!order.contains(row))
            order << row;
    m_order = order;
}

void ConsultGrid::selectOnly(int row)
{
    selectionModel()->select(model()->index(row, 0),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

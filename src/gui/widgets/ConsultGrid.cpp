#include "gui/widgets/ConsultGrid.h"

#include "gui/widgets/ModeloConsulta.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QStyle>
#include <QTimer>


int ConsultGrid::widthFor(const Column& column) const
{
    // The cell's and the title's margins, as the style draws them.
    const int margins = 2 * style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 12;
    const int value = column.widest.isEmpty() ? 0 : fontMetrics().horizontalAdvance(column.widest);
    const int title = horizontalHeader()->fontMetrics().horizontalAdvance(column.title);
    return qMax(value, title) + margins;
}

ConsultGrid::ConsultGrid(QWidget* parent) : QTableView(parent), m_model(new ModeloConsulta(this))
{
    setModel(m_model);
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
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current, const QModelIndex&) { onCurrentChanged(current.row()); });
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (m_clickNeedsRowChange && !m_rowChangedSinceLoad)
            return;
        if (!m_filling && index.row() >= 0)
            emit rowChosen(index.row());
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
            const QString text = m_model->shown(r, c);
            const int width = columnWidth(c) - margins;
            if (width <= 0 || metrics.horizontalAdvance(text) <= width)
                continue;
            const QRect needed =
                metrics.boundingRect(QRect(0, 0, width, 1 << 20), Qt::TextWordWrap | Qt::AlignLeft, text);
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

Qt::Alignment ConsultGrid::alignmentFor(const QString& format, const QString& source)
{
    static const QRegularExpression numberFormat(QStringLiteral("^[#0,.]*0[#0,.]*$"));
    static const QRegularExpression figureColumn(QStringLiteral("^(QT|VL|PC|ALIQ)_"),
                                                 QRegularExpression::CaseInsensitiveOption);
    const bool figure = format.isEmpty() ? figureColumn.match(source).hasMatch() : numberFormat.match(format).hasMatch();
    return (figure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

Qt::Alignment ConsultGrid::columnAlignment(int column) const
{
    return m_model->alignment(column);
}

void ConsultGrid::setColumns(const QList<Column>& columns)
{
    QStringList titles;
    QList<Qt::Alignment> alignment;
    for (const Column& c : columns) {
        titles << c.title;
        alignment << c.alignment;
    }
    m_model->setColumns(titles, alignment);
    m_order.clear();
    m_wrapColumns.clear();
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i).wrap && columns.at(i).width > 0)
            m_wrapColumns << i;
        setColumnHidden(i, columns.at(i).width == 0);
        if (columns.at(i).width > 0)
            setColumnWidth(i, qMax(columns.at(i).width, widthFor(columns.at(i))));
    }
    setWordWrap(!m_wrapColumns.isEmpty());
}

void ConsultGrid::fillWhenNeeded(std::function<void()> fill)
{
    m_pendingFill = std::move(fill);
    if (isVisible())
        fillNow();
}

void ConsultGrid::fillNow() const
{
    if (!m_pendingFill)
        return;
    // Taken out first: the fill sets the rows through the same accessors that call this.
    const std::function<void()> fill = std::move(const_cast<ConsultGrid*>(this)->m_pendingFill);
    const_cast<ConsultGrid*>(this)->m_pendingFill = nullptr;
    fill();
}

void ConsultGrid::showEvent(QShowEvent* event)
{
    fillNow();
    QTableView::showEvent(event);
}

void ConsultGrid::clearRows()
{
    m_pendingFill = nullptr;
    m_rowChangedSinceLoad = false;
    m_filling = true;
    m_model->setRows({});
    m_order.clear();
    m_filling = false;
}

void ConsultGrid::addRow(const QStringList& cells)
{
    fillNow();
    m_filling = true;
    m_model->insertAt(rowCount(), cells);
    m_filling = false;
    fitRowHeightsLater();
}

void ConsultGrid::setRows(const QList<QStringList>& rows)
{
    m_pendingFill = nullptr;
    m_rowChangedSinceLoad = false;
    m_filling = true;
    setUpdatesEnabled(false);
    m_order.clear();
    m_model->setRows(rows);
    makeFirstCurrent();
    fitRowHeights();
    setUpdatesEnabled(true);
    m_filling = false;
}

void ConsultGrid::insertRowAt(int row, const QStringList& cells)
{
    fillNow();
    m_filling = true;
    m_model->insertAt(row, cells);
    m_filling = false;
    fitRowHeightsLater();
}

void ConsultGrid::replaceRow(int row, const QStringList& cells)
{
    fillNow();
    m_model->replaceAt(row, cells);
    fitRowHeightsLater();
}

void ConsultGrid::removeRowAt(int row)
{
    fillNow();
    m_filling = true;
    m_model->removeAt(row);
    m_order.clear();
    m_filling = false;
}

void ConsultGrid::makeFirstCurrent()
{
    // A grid brought up to date row by row stands as after a load: a click waits for the row to move again.
    m_rowChangedSinceLoad = false;
    if (rowCount() == 0)
        return;
    // The first row becomes current and highlighted; on a grid of several picks it is the one picked.
    const bool filling = m_filling;
    m_filling = true;
    m_order.clear();
    int column = 0;
    while (column < columnCount() - 1 && isColumnHidden(column))
        ++column;
    const QModelIndex first = m_model->index(0, column);
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_filling = filling;
}

const QStringList& ConsultGrid::rowValues(int row) const
{
    fillNow();
    return m_model->row(row);
}

int ConsultGrid::rowCount() const
{
    fillNow();
    return m_model->rowCount();
}

int ConsultGrid::columnCount() const
{
    return m_model->columnCount();
}

int ConsultGrid::currentRow() const
{
    fillNow();
    return currentIndex().row();
}

void ConsultGrid::setCurrentCell(int row, int column)
{
    fillNow();
    setCurrentIndex(m_model->index(row, column));
}

QString ConsultGrid::shownText(int row, int column) const
{
    return row >= 0 && row < rowCount() ? m_model->shown(row, column) : QString();
}

QString ConsultGrid::titleText(int column) const
{
    return m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

QString ConsultGrid::cellText(int row, int column) const
{
    return row >= 0 && row < rowCount() ? m_model->value(row, column) : QString();
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
    QTableView::keyPressEvent(event);
    // With Shift held the selection goes back to the whole current row (the chooser alone picks several).
    if (!m_multi && (event->modifiers() & Qt::ShiftModifier) && currentRow() >= 0)
        selectOnly(currentRow());
}

void ConsultGrid::mouseReleaseEvent(QMouseEvent* event)
{
    QTableView::mouseReleaseEvent(event);
    // A drag never selects several rows.
    if (!m_multi && currentRow() >= 0)
        selectOnly(currentRow());
}

void ConsultGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableView::mouseDoubleClickEvent(event);
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

#pragma once
// The consult grid every list screen shares: read-only rows of text, whole-row selection, hidden columns for
// keys and for values that only fill fields, and the row-selection rules of the old flexible grid:
//   - a click, Enter, or a move with the cursor keys "chooses" the current row (rowChosen);
//   - a drag never selects several rows; Shift with a key brings the selection back to the current row;
//   - a double click activates the row (rowActivated), Escape asks to leave (escapePressed); on a list whose
//     Enter stands for Ok (setEnterActivatesRow), Enter activates the row instead of choosing it;
//   - Tab leaves the grid for the next control instead of walking its cells;
//   - a click on a column title is reported (titleClicked) and sorts nothing by itself;
//   - cells show their values without trailing blanks; cellText() gives the values as they were given;
//   - a column may wrap its long values: the rows that hold one grow to show it whole.
// Screens that let the user pick several rows (the declaration chooser) turn on multi-selection; the rows
// picked are then reported in the order they were picked.
// The rows live in a plain list of texts (ModeloConsulta), so that a grid of thousands of rows fills at once and
// a single row can be put in, replaced or taken out without filling the grid again.
#include <QList>
#include <QStringList>
#include <QTableView>
#include <functional>

class ModeloConsulta;

class ConsultGrid : public QTableView {
    Q_OBJECT
public:
    struct Column {
        QString title;
        int width = 100;  // pixels; 0 hides the column
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
        // The widest value the column holds at its declared width (15 "W" for a product code): the column is
        // made at least wide enough to show it whole.
        QString widest = QString();
        // Long values (descriptions) wrap onto more lines of their row rather than being cut.
        bool wrap = false;
    };

    explicit ConsultGrid(QWidget* parent = nullptr);

    // How a column stands, from what it shows: a number format ("#,##0.00") or a quantity, value, percentage or
    // rate column of the store (QT_, VL_, PC_, ALIQ_) is a figure and stands right-aligned, as figures are read
    // and compared; codes, masked numbers ("@@@@.@@.@@") and dates stay left. Every grid asks this one rule.
    static Qt::Alignment alignmentFor(const QString& format, const QString& source = QString());

    // Sets the columns, visible and hidden, in the order the rows give their cells.
    void setColumns(const QList<Column>& columns);
    // Cuts the grid to its title row.
    void clearRows();
    // Adds a row; cells beyond the columns are ignored, missing cells are empty.
    void addRow(const QStringList& cells);
    // Replaces all rows at once (much faster than addRow for thousands of rows); the current row becomes the
    // first when there is one, highlighted, without choosing it. On a grid of several picks the first row is
    // the one picked, so that what the screen's Ok acts on is what the grid shows.
    void setRows(const QList<QStringList>& rows);
    // Rows given when they are needed: `fill` (which sets the rows) runs when the grid is next shown, or as soon
    // as anything asks for its rows, whichever comes first; at once on a grid that is shown. The grids of a tab
    // the user has not opened thus cost nothing, and still answer as filled. A later call, setRows or clearRows
    // replaces a fill still pending.
    void fillWhenNeeded(std::function<void()> fill);
    bool fillPending() const { return bool(m_pendingFill); }

    // One row put in at `row` (the rows after it move down), replaced, or taken out; the current row and the
    // highlight are left to the caller.
    void insertRowAt(int row, const QStringList& cells);
    void replaceRow(int row, const QStringList& cells);
    void removeRowAt(int row);
    // The first row current and highlighted, as a fill leaves it; nothing is chosen.
    void makeFirstCurrent();
    // A row's values as they were given.
    const QStringList& rowValues(int row) const;

    int dataRowCount() const { return rowCount(); }
    int rowCount() const;
    int columnCount() const;
    Qt::Alignment columnAlignment(int column) const;
    int currentRow() const;
    void setCurrentCell(int row, int column);
    QString cellText(int row, int column) const;
    // The text a cell shows (its value without trailing blanks), and a column's title.
    QString shownText(int row, int column) const;
    QString titleText(int column) const;
    // The text of `column` in the current row; empty when there is no current row.
    QString currentText(int column) const;
    QStringList rowTexts(int row) const;

    // No row current nor highlighted, without choosing any (a list whose first row must not look chosen).
    void clearCurrentRow();
    // The current row stays where it is (the cursor keys go on from it) but no row is highlighted: a grid whose
    // rows count as chosen only once the user chooses one, as an editor's block right after a load.
    void clearHighlight();
    // Enter activates the current row (rowActivated), as Ok does, instead of choosing it.
    void setEnterActivatesRow(bool on) { m_enterActivates = on; }

    // An editor's grid: after a load a click chooses nothing until the current row has moved (a click on another
    // row, the cursor keys); from then on a click chooses the row clicked, until the next load. A click on the
    // first row right after a load therefore does nothing.
    void setClickNeedsRowChange(bool on) { m_clickNeedsRowChange = on; }
    // Several rows may be picked with Ctrl and Shift clicks.
    void setMultiSelection(bool on);
    // The rows picked, in the order they were picked (multi-selection), or the current row.
    QList<int> pickedRows() const;
    // The text of `column` in each picked row, in picking order.
    QStringList pickedTexts(int column) const;

signals:
    void rowChosen(int row);
    void rowActivated(int row);
    void escapePressed();
    void titleClicked(int column);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    // Runs the pending fill, if any, before the rows are read or shown.
    void fillNow() const;
    int widthFor(const Column& column) const;
    void fitRowHeights();
    void fitRowHeightsLater();
    void onCurrentChanged(int row);
    void onSelectionChanged();
    void selectOnly(int row);

    ModeloConsulta* m_model = nullptr;
    bool m_multi = false;
    bool m_enterActivates = false;
    bool m_filling = false;
    bool m_clickNeedsRowChange = false;
    bool m_rowChangedSinceLoad = false;
    QList<int> m_order;
    QList<int> m_wrapColumns;
    bool m_fitPending = false;
    std::function<void()> m_pendingFill;
};

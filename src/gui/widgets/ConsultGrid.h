#pragma once
// The consult grid every list screen shares: read-only rows of text, whole-row selection, hidden columns for
// keys and for values that only fill fields, and the row-selection rules of the old flexible grid:
//   - a click, Enter, or a move with the cursor keys "chooses" the current row (rowChosen);
//   - a drag never selects several rows; Shift with a key brings the selection back to the current row;
//   - a double click activates the row (rowActivated), Escape asks to leave (escapePressed);
//   - a click on a column title is reported (titleClicked) and sorts nothing by itself;
//   - cells show their values without trailing blanks; cellText() gives the values as they were given.
// Screens that let the user pick several rows (the declaration chooser) turn on multi-selection; the rows
// picked are then reported in the order they were picked.
#include <QList>
#include <QStringList>
#include <QTableWidget>

class ConsultGrid : public QTableWidget {
    Q_OBJECT
public:
    struct Column {
        QString title;
        int width = 100;  // pixels; 0 hides the column
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    };

    explicit ConsultGrid(QWidget* parent = nullptr);

    // Sets the columns, visible and hidden, in the order the rows give their cells.
    void setColumns(const QList<Column>& columns);
    // Cuts the grid to its title row.
    void clearRows();
    // Adds a row; cells beyond the columns are ignored, missing cells are empty.
    void addRow(const QStringList& cells);
    // Replaces all rows at once (much faster than addRow for thousands of rows); the current row becomes the
    // first when there is one, without choosing it.
    void setRows(const QList<QStringList>& rows);

    int dataRowCount() const { return rowCount(); }
    QString cellText(int row, int column) const;
    // The text of `column` in the current row; empty when there is no current row.
    QString currentText(int column) const;
    QStringList rowTexts(int row) const;

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
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void onCurrentChanged(int row);
    void onSelectionChanged();
    void selectOnly(int row);

    bool m_multi = false;
    bool m_filling = false;
    QList<int> m_order;
};

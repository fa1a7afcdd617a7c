#include "gui/blocks/RegraSaida.h"

#include "gui/widgets/FieldFocus.h"

#include <QEvent>
#include <QFocusEvent>
#include <QWidget>

namespace {

class FiltroSaida : public QObject {
public:
    FiltroSaida(QWidget* campo, std::function<bool()> regra) : QObject(campo), m_regra(std::move(regra)) {}

protected:
    bool eventFilter(QObject* alvo, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut && isLeaveToCheck(static_cast<QFocusEvent*>(evento))
            && !m_regra())
            returnFocusLater(static_cast<QWidget*>(alvo));
        return false;
    }

private:
    std::function<bool()> m_regra;
};

}  // namespace

void aoSair(QWidget* campo, std::function<bool()> regra)
{
    campo->installEventFilter(new FiltroSaida(campo, std::move(regra)));
}

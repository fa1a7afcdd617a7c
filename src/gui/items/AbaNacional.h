#pragma once
// The tab "100% Nacional" of both editors: one entry block (BlocosNacional) under the invoice head of the
// individual editor.
#include "gui/items/AbaItens.h"

class ExecutorBloco;

class AbaNacional : public AbaItens {
    Q_OBJECT
public:
    AbaNacional(const ContextoItens& contexto, QWidget* parent = nullptr);

    void carrega() override;
    void repopula() override;
    ExecutorBloco* bloco() const { return m_bloco; }

private:
    ExecutorBloco* m_bloco = nullptr;
};

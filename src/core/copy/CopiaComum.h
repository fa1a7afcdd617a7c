#pragma once
// The frame both copy routines share: the fresh connection and its transaction, the head row and the values of
// the head, the progress, and the closing message before the commit.
#include "core/copy/CopiaVrt.h"
#include "core/copy/CopiadorLinhas.h"

namespace CopiaVrt {

// The key map of the declaration itself: its identification, old and new.
inline const QString MapaVrt = QStringLiteral("VRT");

class CopiaEmCurso {
public:
    // Replaces the connection with a fresh one to the database file, begins the transaction and shows the
    // progress; the numbering is the caller's, right after.
    CopiaEmCurso(const Pedido& pedido, const Acompanhamento& acompanhamento);

    // VRT, VALORES_DIVER_RETIF (for "Retificadora" only) and VALORES_DIVER_MANDADO.
    void copiaCabeca();
    void avanca(int valor);
    // "** Cópia concluída **", the message, and the commit.
    void conclui(const QString& mensagem);

    bool retificadora() const { return m_pedido.tipo == Tipo::Retificadora; }
    const QString& origem() const { return m_pedido.origem; }
    const QString& nova() const { return m_nova; }
    CopiadorLinhas& linhas() { return *m_linhas; }

private:
    QString numeroVrt() const;
    Pedido m_pedido;
    QString m_nova;
    const Acompanhamento& m_acompanhamento;
    std::unique_ptr<CopiadorLinhas> m_linhas;
};

}  // namespace CopiaVrt

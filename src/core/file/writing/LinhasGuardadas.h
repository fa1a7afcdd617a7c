#pragma once
// Rows of a statement kept after it moved on, each value as the engine gave it, in one buffer that keeps its
// room when emptied: the writer holds thousands of rows this way at the cost of their bytes, where composed
// records would cost a line of several hundred characters and an allocation each.
//   LinhasGuardadas linhas;
//   while (rs.proxima()) linhas.guarda(rs);
//   r.preenche(linhas.linha(0), mapa);          // as from the statement's row (LinhaRegistro, MapaColunas)
#include "core/store/ComandoSqlite.h"

#include <QByteArrayView>
#include <QString>
#include <string>
#include <vector>

class LinhasGuardadas {
    enum { Nulo = -1, Inteiro = -2 };
    struct Celula {
        int inicio;
        int tamanho;  // of the UTF-8; Nulo, or Inteiro for the 8 bytes of a qint64
    };

public:
    // One kept row, read as a statement's row is.
    class Linha {
    public:
        bool utf8(int coluna, QByteArrayView& texto) const;
        QString texto(int coluna) const;
        qint64 inteiro(int coluna) const;

    private:
        friend class LinhasGuardadas;
        Linha(const LinhasGuardadas& dono, int linha) : m_dono(&dono), m_linha(linha) {}
        const Celula& celula(int coluna) const;
        const LinhasGuardadas* m_dono;
        int m_linha;
    };

    // Indexes of rows [inicio, fim), for a range-for.
    struct Faixa {
        int inicio = 0, fim = 0;
        struct Iterador {
            int k;
            int operator*() const { return k; }
            Iterador& operator++()
            {
                ++k;
                return *this;
            }
            bool operator!=(const Iterador& o) const { return k != o.k; }
        };
        Iterador begin() const { return {inicio}; }
        Iterador end() const { return {fim}; }
    };

    // Keeps the statement's current row and gives its index.
    int guarda(const ComandoSqlite& rs);
    int quantas() const { return m_colunas ? int(m_celulas.size() / size_t(m_colunas)) : 0; }
    Linha linha(int k) const { return Linha(*this, k); }
    // Forgets every row, keeping the room.
    void limpa();

private:
    int m_colunas = 0;
    std::string m_dados;            // every kept value, one after the other
    std::vector<Celula> m_celulas;  // m_colunas per row
};

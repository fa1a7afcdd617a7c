#pragma once
// The value slots of records 02 (judicial order, VALORES_DIVER_MANDADO) and 03 (rectification,
// VALORES_DIVER_RETIF): one fixed slot per pair of modality and value type, with the names the reader stores.
// The codes differ between the two tables (interest before the fine in the judicial order's numbering).
//   for (const SlotValor& s : SlotsValores::mandado()) ... s.posicaoIndicador, s.posicaoValor, s.cdMod ...
//   int k = SlotsValores::slotMandado(1, 3);   // 1; 0 when the pair has no slot
#include <QString>
#include <QVector>

struct SlotValor {
    int slot = 0;              // 1..35 (record 02) or 1..33 (record 03)
    int posicaoIndicador = 0;  // record 02: the "S"/"N" flag; record 03: 0, it has none
    int posicaoValor = 0;      // the D2 value of 15 positions
    int cdMod = 0;
    int cdTipo = 0;
    QString nmMod;
    QString nmTipo;
    QString campoIndicador;    // the fields of the slot in the record's layout; record 03: no indicator
    QString campoValor;
};

// The columns of a slot's row besides the declaration's key and the value (whose column the layout names):
// the codes of modality and value type and their names.
struct ColunasSlot {
    QString cdMod, cdTipo, nmMod, nmTipo;
};

class SlotsValores {
public:
    static constexpr int TamanhoValor = 15;
    static constexpr int QuantidadeMandado = 35;
    static constexpr int QuantidadeRetif = 33;
    // Where slot k (from 1) stands: record 02 gives each slot its flag and then its value, record 03 only
    // the value. The layouts of both records and the readers take the positions from here.
    static constexpr int posicaoIndicadorMandado(int k) { return 4 + (1 + TamanhoValor) * (k - 1); }
    static constexpr int posicaoValorMandado(int k) { return posicaoIndicadorMandado(k) + 1; }
    static constexpr int posicaoValorRetif(int k) { return 30 + TamanhoValor * (k - 1); }
    // Names of the slot's fields in the layouts: "IND_MANDADO_01", "VL_MANDADO_01", "VL_RETIF_01".
    static QString campoIndicadorMandado(int k);
    static QString campoValorMandado(int k);
    static QString campoValorRetif(int k);
    static const ColunasSlot& colunasMandado();
    static const ColunasSlot& colunasRetif();
    static const QVector<SlotValor>& mandado();
    static const QVector<SlotValor>& retif();
    // The slot of a pair of codes, compared as numbers ("03" finds 3), or 0 when the pair has none.
    static int slotMandado(int cdMod, int cdTipo);
    static int slotRetif(int cdMod, int cdTipo);
};

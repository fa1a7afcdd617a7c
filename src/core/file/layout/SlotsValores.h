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
};

class SlotsValores {
public:
    static constexpr int TamanhoValor = 15;
    static const QVector<SlotValor>& mandado();
    static const QVector<SlotValor>& retif();
    // The slot of a pair of codes, compared as numbers ("03" finds 3), or 0 when the pair has none.
    static int slotMandado(int cdMod, int cdTipo);
    static int slotRetif(int cdMod, int cdTipo);
};

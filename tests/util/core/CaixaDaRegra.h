#pragma once
// What a field rule shows: nothing when it passes quietly, or exactly one box with its text, its icon and the
// main window's caption. In a test function:
//     CONFERE_CAIXA_DA_REGRA(msgs, mensagem, Msg::Critical);   // empty mensagem: no box at all
#include "TestUtil.h"
#include "core/session/MsgBox.h"

#include <QTest>

inline bool confereCaixaDaRegra(const MensagensRoteiro& msgs, const QString& mensagem, int icone, const char* arquivo,
                                int linha)
{
    if (mensagem.isEmpty())
        return QTest::qCompare(msgs.caixas.size(), qsizetype(0), "msgs.caixas.size()", "0", arquivo, linha);
    if (!QTest::qCompare(msgs.textos(), QStringList{mensagem}, "msgs.textos()", "mensagem", arquivo, linha))
        return false;
    if (!QTest::qCompare(msgs.caixas.at(0).icone(), icone, "icone()", "icone", arquivo, linha))
        return false;
    return QTest::qCompare(msgs.caixas.at(0).titulo, TituloPadrao, "titulo", "TituloPadrao", arquivo, linha);
}

#define CONFERE_CAIXA_DA_REGRA(msgs, mensagem, icone)                                  \
    do {                                                                               \
        if (!confereCaixaDaRegra((msgs), (mensagem), (icone), __FILE__, __LINE__))     \
            return;                                                                    \
    } while (false)

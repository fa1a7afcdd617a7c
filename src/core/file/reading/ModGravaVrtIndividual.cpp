#include "core/file/reading/ModGravaVrtIndividual.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/reading/EstadoLeitura.h"
#include "core/file/reading/ExcecoesLeitura.h"
#include "core/file/reading/InsercaoRegistro.h"
#include "core/file/layout/RegistroLido.h"
#include "core/store/ComandosPreparados.h"

#include <QHash>

// Literals without an allocation: the readers name fields on every record.
using namespace Qt::Literals::StringLiterals;

namespace {
const QString ItemNfs = u"ITEM_NFS"_s;
}  // namespace

// The rows each record gives, with the keys and constants the reading adds in front of the layout's fields.
struct ModGravaVrtIndividual::Insercoes {
    explicit Insercoes(const ModGravaVrtIndividual& m)
        : pe11(m.layout(11), u"ITEM_NFS_PE"_s, {u"ID_ITEM"_s}),
          justificativa11(m.layout(11), u"JUST_DIF_ALIQ_PROD_VRT_IND"_s, {u"ID_ITEM"_s}),
          nfa12(m.layout(12), u"ITEM_NFA_PE_IND"_s, {u"ID_ITEM"_s}),
          di13(m.layout(13), u"ITEM_DI_PE_IND"_s, {u"ID_ITEM"_s}),
          valores13(m.layout(13), u"ITEM_IMPORT_288_PE"_s, {u"ID_ITEM_DI"_s}),
          dsi14(m.layout(14), u"ITEM_DSI_PE_IND"_s, {u"ID_ITEM"_s}),
          ppb21(m.layout(21), u"ITEM_NFS_PI_COM_PPB"_s, {u"ID_ITEM"_s, u"CD_TIPO_COEF_REDUCAO"_s}),
          dcre21(m.layout(21), u"DCRE"_s, {u"ID_ITEM"_s}, {u"QT_PRODUTO"_s}),
          dcr21(m.layout(21), u"DCR"_s, {u"ID_ITEM"_s}),
          semPpb31(m.layout(31), u"ITEM_NFS_PI_SEM_PPB"_s, {u"ID_ITEM"_s}),
          insumo32(m.layout(32), u"INSUMO_ITEM_NFS"_s, {u"ID_ITEM"_s}),
          justificativa33(m.layout(33), u"JUST_DIF_ALIQ_INS_VRT_IND"_s, {u"ID_INSUMO"_s}),
          total33(m.layout(33), u"INSUMO_VRT_IND"_s, {u"ID_VRT_MICRO"_s}, {u"CD_INT_INSUMO"_s}),
          nfa34(m.layout(34), u"ITEM_NFA_INS_IND"_s, {u"ID_INSUMO"_s}),
          di35(m.layout(35), u"ITEM_DI_INS_IND"_s, {u"ID_INSUMO"_s}),
          valores35(m.layout(35), u"ITEM_IMPORT_288_INS"_s, {u"ID_ITEM_DI"_s}),
          dsi36(m.layout(36), u"ITEM_DSI_INS_IND"_s, {u"ID_INSUMO"_s}),
          nacional41(m.layout(41), u"ITEM_NFS_100"_s, {u"ID_ITEM"_s})
    {
        for (int tipo : {11, 21, 31, 41})
            itens.insert(tipo, std::make_shared<InsercaoRegistro>(m.layout(tipo), ItemNfs,
                                                                   QStringList{u"ID_NFS"_s, u"IND_MOD_INTERNACAO"_s}));
    }
    // The invoice's item of records 11, 21, 31 and 41 (record 21 has no NCM: its item keeps it Null).
    QHash<int, std::shared_ptr<InsercaoRegistro>> itens;
    const InsercaoRegistro pe11, justificativa11, nfa12, di13, valores13, dsi14, ppb21, dcre21, dcr21, semPpb31,
        insumo32, justificativa33, total33, nfa34, di35, valores35, dsi36, nacional41;
};

ModGravaVrtIndividual::ModGravaVrtIndividual(EstadoLeitura& estado, ComandosPreparados& comandos,
                                             CadastrosLeitura& cadastros)
    : LeitorItens(TipoDeclaracao::Individual, estado, comandos, cadastros),
      m_insercoes(std::make_unique<Insercoes>(*this))
{
}

ModGravaVrtIndividual::~ModGravaVrtIndividual() = default;

bool ModGravaVrtIndividual::registraProduto(const RegistroLido& r, const QString& tipo, bool confereNcm)
{
    if (confereNcm && !m_cadastros.ExisteNcm(r.texto(u"CD_NCM_PROD"_s)))
        return m_estado.erroRegistro(tipo, QStringLiteral("NCM não cadastrada"));
    m_estado.nomeLido = r.texto(u"NM_INT_PROD"_s);
    if (!m_cadastros.RegistraProduto(r.lido(u"CD_INT_PROD"_s), m_estado.nomeLido))
        return m_estado.erroRegistro(tipo, u"Erro ao cadastrar o Produto"_s);
    QString unidade = r.texto(u"NM_UNID_MED_PROD"_s);
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(tipo, u"Erro ao cadastrar a Unidade de Medida"_s);
    return true;
}

bool ModGravaVrtIndividual::novoItem(const RegistroLido& r, const QString& modalidade, const QString& mensagem)
{
    const int tipo = r.layout().tipo.toInt();
    m_insercoes->itens.value(tipo)->executa(m_comandos, r, {m_estado.idNfs, modalidade});
    return novaChave(m_estado.itemAtual, r.layout().tipo, mensagem);
}

bool ModGravaVrtIndividual::registro11(const RegistroLido& r)
{
    if (!registraProduto(r, u"11"_s, true))
        return false;
    if (!novoItem(r, u"1"_s, QStringLiteral("Problema de Gravação no Registro 11 da individual!")))
        return false;
    const Insercoes& ins = *m_insercoes;
    ins.pe11.executa(m_comandos, r, {m_estado.itemAtual});
    if (ExcecoesLeitura::temJustificativaIndividual(r)) {
        QVariantList v = ins.justificativa11.valores(r, {m_estado.itemAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa11, v);
        ins.justificativa11.executa(m_comandos, v);
    }
    return true;
}

bool ModGravaVrtIndividual::registro12(const RegistroLido& r)
{
    m_insercoes->nfa12.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

bool ModGravaVrtIndividual::registro13(const RegistroLido& r)
{
    m_insercoes->di13.executa(m_comandos, r, {m_estado.itemAtual});
    QVariant di;
    if (!novaChave(di, u"13"_s, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 13 DA INDIVIDUAL")))
        return false;
    m_insercoes->valores13.executa(m_comandos, r, {di});
    return true;
}

bool ModGravaVrtIndividual::registro14(const RegistroLido& r)
{
    m_insercoes->dsi14.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

bool ModGravaVrtIndividual::registro21(const RegistroLido& r)
{
    if (!registraProduto(r, u"21"_s, false))
        return false;
    // The record has no NCM; its message on a missing key is record 41's, as the system has it.
    if (!novoItem(r, u"2"_s, QStringLiteral("Problema de Gravação no Registro 41 da individual")))
        return false;
    const Insercoes& ins = *m_insercoes;
    const ExcecoesLeitura::NumeroPpb ppb = ExcecoesLeitura::numeroPpb(r);
    ins.ppb21.executa(m_comandos, r, {m_estado.itemAtual, ppb.tipo});
    if (ppb.tipo == u"1"_s)
        ins.dcre21.executa(m_comandos, r, {m_estado.itemAtual});
    else if (ppb.tipo == u"2"_s)
        ins.dcr21.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

bool ModGravaVrtIndividual::registro31(const RegistroLido& r)
{
    if (!registraProduto(r, u"31"_s, true))
        return false;
    if (!novoItem(r, u"3"_s, QStringLiteral("Problema de Gravação no Registro 31 da individual")))
        return false;
    m_insercoes->semPpb31.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

bool ModGravaVrtIndividual::registro32(const RegistroLido& r)
{
    // The product is registered under the name read last: from the second input on that is the previous
    // input's name, written over the product's. This is how the system behaves.
    if (!m_cadastros.RegistraProduto(r.lido(u"CD_INT_PROD"_s), m_estado.nomeLido))
        return m_estado.erroRegistro(u"32"_s, QStringLiteral("Insumo não cadastrado"));
    const QString codigo = r.lido(u"CD_INT_INSUMO"_s);
    const QString nome = r.texto(u"NM_INT_INSUMO"_s);
    m_estado.nomeLido = nome;
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(u"32"_s, u"Erro ao cadastrar o Insumo"_s);
    if (!m_cadastros.ExisteNcm(r.texto(u"CD_NCM_INSUMO"_s)))
        return m_estado.erroRegistro(u"32"_s, QStringLiteral("NCM não cadastrada"));
    m_insercoes->insumo32.executa(m_comandos, r, {m_estado.itemAtual});
    return novaChave(m_estado.insumoAtual, u"32"_s, QStringLiteral("Problema de Gravação no Registro 32 da individual"));
}

bool ModGravaVrtIndividual::registro33(const RegistroLido& r)
{
    const QString codigo = r.lido(u"CD_INT_INSUMO"_s);
    if (!m_cadastros.RegistraProduto(codigo, m_estado.nomeLido))
        return m_estado.erroRegistro(u"33"_s, QStringLiteral("Insumo não cadastrado"));
    const Insercoes& ins = *m_insercoes;
    // Unlike the monthly reader, a row only when a justification is there.
    if (!r.brancos(u"JUST_II_DIF_TEC"_s) || !r.brancos(u"JUST_IPI_DIF_TIPI"_s)) {
        QVariantList v = ins.justificativa33.valores(r, {m_estado.insumoAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa33, v);
        ins.justificativa33.executa(m_comandos, v);
    }
    if (!r.zeros(u"QT_TOT_INS"_s) && !m_estado.insumosComTotal.contains(codigo)) {
        ins.total33.executa(m_comandos, r, {m_estado.IdVrtLida});
        m_estado.insumosComTotal.insert(codigo);
    }
    return true;
}

bool ModGravaVrtIndividual::registro34(const RegistroLido& r)
{
    m_insercoes->nfa34.executa(m_comandos, r, {m_estado.insumoAtual});
    return true;
}

bool ModGravaVrtIndividual::registro35(const RegistroLido& r)
{
    m_insercoes->di35.executa(m_comandos, r, {m_estado.insumoAtual});
    QVariant di;
    if (!novaChave(di, u"35"_s, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 35 DA INDIVIDUAL")))
        return false;
    m_insercoes->valores35.executa(m_comandos, r, {di});
    return true;
}

bool ModGravaVrtIndividual::registro36(const RegistroLido& r)
{
    m_insercoes->dsi36.executa(m_comandos, r, {m_estado.insumoAtual});
    return true;
}

bool ModGravaVrtIndividual::registro41(const RegistroLido& r)
{
    if (!registraProduto(r, u"41"_s, true))
        return false;
    if (!novoItem(r, u"4"_s, QStringLiteral("Problema de Gravação no Registro 41 da individual")))
        return false;
    m_insercoes->nacional41.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

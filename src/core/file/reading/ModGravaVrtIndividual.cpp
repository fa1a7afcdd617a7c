#include "core/file/reading/ModGravaVrtIndividual.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/reading/EstadoLeitura.h"
#include "core/file/reading/ExcecoesLeitura.h"
#include "core/file/reading/InsercaoRegistro.h"
#include "core/file/layout/RegistroLido.h"
#include "core/store/ComandosPreparados.h"

#include <QHash>

namespace {
QString c(const char* t)
{
    return QString::fromLatin1(t);
}
const QString ItemNfs = c("ITEM_NFS");
}  // namespace

// The rows each record gives, with the keys and constants the reading adds in front of the layout's fields.
struct ModGravaVrtIndividual::Insercoes {
    explicit Insercoes(const ModGravaVrtIndividual& m)
        : pe11(m.layout(11), c("ITEM_NFS_PE"), {c("ID_ITEM")}),
          justificativa11(m.layout(11), c("JUST_DIF_ALIQ_PROD_VRT_IND"), {c("ID_ITEM")}),
          nfa12(m.layout(12), c("ITEM_NFA_PE_IND"), {c("ID_ITEM")}),
          di13(m.layout(13), c("ITEM_DI_PE_IND"), {c("ID_ITEM")}),
          valores13(m.layout(13), c("ITEM_IMPORT_288_PE"), {c("ID_ITEM_DI")}),
          dsi14(m.layout(14), c("ITEM_DSI_PE_IND"), {c("ID_ITEM")}),
          ppb21(m.layout(21), c("ITEM_NFS_PI_COM_PPB"), {c("ID_ITEM"), c("CD_TIPO_COEF_REDUCAO")}),
          dcre21(m.layout(21), c("DCRE"), {c("ID_ITEM")}, {c("QT_PRODUTO")}),
          dcr21(m.layout(21), c("DCR"), {c("ID_ITEM")}),
          semPpb31(m.layout(31), c("ITEM_NFS_PI_SEM_PPB"), {c("ID_ITEM")}),
          insumo32(m.layout(32), c("INSUMO_ITEM_NFS"), {c("ID_ITEM")}),
          justificativa33(m.layout(33), c("JUST_DIF_ALIQ_INS_VRT_IND"), {c("ID_INSUMO")}),
          total33(m.layout(33), c("INSUMO_VRT_IND"), {c("ID_VRT_MICRO")}, {c("CD_INT_INSUMO")}),
          nfa34(m.layout(34), c("ITEM_NFA_INS_IND"), {c("ID_INSUMO")}),
          di35(m.layout(35), c("ITEM_DI_INS_IND"), {c("ID_INSUMO")}),
          valores35(m.layout(35), c("ITEM_IMPORT_288_INS"), {c("ID_ITEM_DI")}),
          dsi36(m.layout(36), c("ITEM_DSI_INS_IND"), {c("ID_INSUMO")}),
          nacional41(m.layout(41), c("ITEM_NFS_100"), {c("ID_ITEM")})
    {
        for (int tipo : {11, 21, 31, 41})
            itens.insert(tipo, std::make_shared<InsercaoRegistro>(m.layout(tipo), ItemNfs,
                                                                   QStringList{c("ID_NFS"), c("IND_MOD_INTERNACAO")}));
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
    if (confereNcm && !m_cadastros.ExisteNcm(r.texto(c("CD_NCM_PROD"))))
        return m_estado.erroRegistro(tipo, QStringLiteral("NCM não cadastrada"));
    m_estado.nomeLido = r.texto(c("NM_INT_PROD"));
    if (!m_cadastros.RegistraProduto(r.lido(c("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(tipo, c("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(c("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(tipo, c("Erro ao cadastrar a Unidade de Medida"));
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
    if (!registraProduto(r, c("11"), true))
        return false;
    if (!novoItem(r, c("1"), QStringLiteral("Problema de Gravação no Registro 11 da individual!")))
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
    if (!novaChave(di, c("13"), QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 13 DA INDIVIDUAL")))
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
    if (!registraProduto(r, c("21"), false))
        return false;
    // The record has no NCM; its message on a missing key is record 41's, as the system has it.
    if (!novoItem(r, c("2"), QStringLiteral("Problema de Gravação no Registro 41 da individual")))
        return false;
    const Insercoes& ins = *m_insercoes;
    const ExcecoesLeitura::NumeroPpb ppb = ExcecoesLeitura::numeroPpb(r);
    ins.ppb21.executa(m_comandos, r, {m_estado.itemAtual, ppb.tipo});
    if (ppb.tipo == c("1"))
        ins.dcre21.executa(m_comandos, r, {m_estado.itemAtual});
    else if (ppb.tipo == c("2"))
        ins.dcr21.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

bool ModGravaVrtIndividual::registro31(const RegistroLido& r)
{
    if (!registraProduto(r, c("31"), true))
        return false;
    if (!novoItem(r, c("3"), QStringLiteral("Problema de Gravação no Registro 31 da individual")))
        return false;
    m_insercoes->semPpb31.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

bool ModGravaVrtIndividual::registro32(const RegistroLido& r)
{
    // The product is registered under the name read last: from the second input on that is the previous
    // input's name, written over the product's. This is how the system behaves.
    if (!m_cadastros.RegistraProduto(r.lido(c("CD_INT_PROD")), m_estado.nomeLido))
        return m_estado.erroRegistro(c("32"), QStringLiteral("Insumo não cadastrado"));
    const QString codigo = r.lido(c("CD_INT_INSUMO"));
    const QString nome = r.texto(c("NM_INT_INSUMO"));
    m_estado.nomeLido = nome;
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(c("32"), c("Erro ao cadastrar o Insumo"));
    if (!m_cadastros.ExisteNcm(r.texto(c("CD_NCM_INSUMO"))))
        return m_estado.erroRegistro(c("32"), QStringLiteral("NCM não cadastrada"));
    m_insercoes->insumo32.executa(m_comandos, r, {m_estado.itemAtual});
    return novaChave(m_estado.insumoAtual, c("32"), QStringLiteral("Problema de Gravação no Registro 32 da individual"));
}

bool ModGravaVrtIndividual::registro33(const RegistroLido& r)
{
    const QString codigo = r.lido(c("CD_INT_INSUMO"));
    if (!m_cadastros.RegistraProduto(codigo, m_estado.nomeLido))
        return m_estado.erroRegistro(c("33"), QStringLiteral("Insumo não cadastrado"));
    const Insercoes& ins = *m_insercoes;
    // Unlike the monthly reader, a row only when a justification is there.
    if (!r.brancos(c("JUST_II_DIF_TEC")) || !r.brancos(c("JUST_IPI_DIF_TIPI"))) {
        QVariantList v = ins.justificativa33.valores(r, {m_estado.insumoAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa33, v);
        ins.justificativa33.executa(m_comandos, v);
    }
    if (!r.zeros(c("QT_TOT_INS")) && !m_estado.insumosComTotal.contains(codigo)) {
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
    if (!novaChave(di, c("35"), QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 35 DA INDIVIDUAL")))
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
    if (!registraProduto(r, c("41"), true))
        return false;
    if (!novoItem(r, c("4"), QStringLiteral("Problema de Gravação no Registro 41 da individual")))
        return false;
    m_insercoes->nacional41.executa(m_comandos, r, {m_estado.itemAtual});
    return true;
}

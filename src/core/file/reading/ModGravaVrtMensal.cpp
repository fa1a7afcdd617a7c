#include "core/file/reading/ModGravaVrtMensal.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/reading/EstadoLeitura.h"
#include "core/file/reading/ExcecoesLeitura.h"
#include "core/file/reading/InsercaoRegistro.h"
#include "core/file/layout/RegistroLido.h"
#include "core/store/ComandosPreparados.h"

namespace {
QString c(const char* t)
{
    return QString::fromLatin1(t);
}
const QString Item = c("ITEM_VRT_MEN");
const QString Destino = c("DESTINO_ITEM_VRT_MEN");
}  // namespace

// The rows each record gives, with the keys and constants the reading adds in front of the layout's fields.
struct ModGravaVrtMensal::Insercoes {
    explicit Insercoes(const ModGravaVrtMensal& m)
        : item11(m.layout(11), Item, {c("ID_VRT_MICRO"), c("IND_MOD_INTERNACAO")}),
          destino11(m.layout(11), Destino, {c("ID_ITEM_VRT")}),
          justificativa11(m.layout(11), c("JUST_DIF_ALIQ_PROD_VRT_MEN"), {c("ID_ITEM_VRT")}),
          nfa12(m.layout(12), c("ITEM_NFA_PE_MEN"), {c("ID_DEST_PRODUTO")}),
          di13(m.layout(13), c("ITEM_DI_PE_MEN"), {c("ID_DEST_PRODUTO")}),
          valores13(m.layout(13), c("ITEM_IMPORT_288_PE_MEN"), {c("ID_ITEM_DI")}),
          dsi14(m.layout(14), c("ITEM_DSI_PE_MEN"), {c("ID_DEST_PRODUTO")}),
          item21(m.layout(21), Item, {c("ID_VRT_MICRO"), c("IND_MOD_INTERNACAO")}),
          destino21(m.layout(21), Destino, {c("ID_ITEM_VRT")}),
          item31(m.layout(31), Item, {c("ID_VRT_MICRO"), c("IND_MOD_INTERNACAO")}),
          insumo32(m.layout(32), c("INSUMO_ITEM_VRT_MEN"), {c("ID_ITEM_VRT")}),
          justificativa33(m.layout(33), c("JUST_DIF_ALIQ_INS_VRT_MEN"), {c("ID_INSUMO_ITEM")}),
          total33(m.layout(33), c("INSUMO_VRT"), {c("ID_VRT_MICRO")}, {c("CD_INT_INSUMO")}),
          nfa34(m.layout(34), c("ITEM_NFA_INS_MEN"), {c("ID_VRT_MICRO"), c("ID_INSUMO_ITEM")}),
          di35(m.layout(35), c("ITEM_DI_INS_MEN"), {c("ID_VRT_MICRO"), c("NM_INT_INSUMO"), c("ID_INSUMO_ITEM")}),
          valores35(m.layout(35), c("ITEM_IMPORT_288_INS_MEN"), {c("ID_ITEM_DI")}),
          dsi36(m.layout(36), c("ITEM_DSI_INS_MEN"), {c("ID_VRT_MICRO"), c("ID_INSUMO_ITEM")}),
          item41(m.layout(41), Item, {c("ID_VRT_MICRO"), c("IND_MOD_INTERNACAO")})
    {
    }
    const InsercaoRegistro item11, destino11, justificativa11, nfa12, di13, valores13, dsi14, item21, destino21,
        item31, insumo32, justificativa33, total33, nfa34, di35, valores35, dsi36, item41;
    // Record 31's four destination pairs and record 21's one number of two fields are not one field per column.
    const QString destino31 = InsercaoRegistro::monta(Destino, {c("ID_ITEM_VRT"), c("CD_LOCAL_DESTINO"),
                                                                c("QT_PROD_LOC_DEST")});
    const QString ppb21 = InsercaoRegistro::monta(c("ITEM_VRT_MEN_PI_COM_PPB"), {c("ID_ITEM_VRT"), c("NR_DCRE_DCR"),
                                                                                  c("CD_TIPO_COEF_REDUCAO")});
};

ModGravaVrtMensal::ModGravaVrtMensal(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros)
    : LeitorItens(TipoDeclaracao::Mensal, estado, comandos, cadastros),
      m_insercoes(std::make_unique<Insercoes>(*this))
{
}

ModGravaVrtMensal::~ModGravaVrtMensal() = default;

bool ModGravaVrtMensal::registraProduto(const RegistroLido& r, const QString& tipo, bool confereNcm)
{
    if (confereNcm && !m_cadastros.ExisteNcm(r.texto(c("CD_NCM_PRODUTO"))))
        return m_estado.erroRegistro(tipo, QStringLiteral("NCM não cadastrada"));
    if (!m_cadastros.RegistraProduto(r.lido(c("CD_INT_PRODUTO")), r.texto(c("NM_INT_PRODUTO"))))
        return m_estado.erroRegistro(tipo, c("Erro ao cadastrar o Produto"));
    QString unidade = r.texto(tipo == c("21") ? c("NM_UNID_MED_DEST") : c("NM_UNID_MED_PROD"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(tipo, c("Erro ao cadastrar a Unidade de Medida"));
    return true;
}

bool ModGravaVrtMensal::registro11(const RegistroLido& r)
{
    if (!registraProduto(r, c("11"), true))
        return false;
    const Insercoes& ins = *m_insercoes;
    // The several records 11 of one product (one per destination) fold back into one item.
    const QString codigo = r.lido(c("CD_INT_PRODUTO"));
    const auto existente = m_estado.itensPE.constFind(codigo);
    if (existente != m_estado.itensPE.constEnd()) {
        m_estado.itemAtual = existente.value();
    } else {
        ins.item11.executa(m_comandos, r, {m_estado.IdVrtLida, c("1")});
        if (!novaChave(m_estado.itemAtual, c("11"), QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 11 DA MENSAL")))
            return false;
        m_estado.itensPE.insert(codigo, m_estado.itemAtual);
    }
    ins.destino11.executa(m_comandos, r, {m_estado.itemAtual});
    if (!novaChave(m_estado.destinoAtual, c("11"), QStringLiteral("Problema de Gravação no Registro 11 da mensal")))
        return false;

    // Only the first record 11 of a product fills the justification: later destinations' are not read.
    const qint64 item = m_estado.itemAtual.toLongLong();
    if (!m_estado.itensComJustificativa.contains(item)) {
        QVariantList v = ins.justificativa11.valores(r, {m_estado.itemAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa11, v);
        ins.justificativa11.executa(m_comandos, v);
        m_estado.itensComJustificativa.insert(item);
    }
    m_estado.localDestinoAtual = r.texto(c("CD_LOCAL_DESTINO"));
    return true;
}

bool ModGravaVrtMensal::registro12(const RegistroLido& r)
{
    m_insercoes->nfa12.executa(m_comandos, r, {m_estado.destinoAtual});
    return true;
}

bool ModGravaVrtMensal::registro13(const RegistroLido& r)
{
    m_insercoes->di13.executa(m_comandos, r, {m_estado.destinoAtual});
    QVariant di;
    if (!novaChave(di, c("13"), QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 13 DA MENSAL")))
        return false;
    // Always one row of values, empty ones included.
    m_insercoes->valores13.executa(m_comandos, r, {di});
    return true;
}

bool ModGravaVrtMensal::registro14(const RegistroLido& r)
{
    m_insercoes->dsi14.executa(m_comandos, r, {m_estado.destinoAtual});
    return true;
}

bool ModGravaVrtMensal::registro21(const RegistroLido& r)
{
    if (!registraProduto(r, c("21"), false))
        return false;
    // No search, unlike record 11: each destination of the product comes back as an item of its own.
    m_insercoes->item21.executa(m_comandos, r, {m_estado.IdVrtLida, c("2")});
    if (!novaChave(m_estado.itemAtual, c("21"), QStringLiteral("Problema de Gravação no Registro 21 da mensal")))
        return false;
    m_insercoes->destino21.executa(m_comandos, r, {m_estado.itemAtual});
    m_estado.destinoAtual = m_comandos.ultimaChave();
    const ExcecoesLeitura::NumeroPpb ppb = ExcecoesLeitura::numeroPpb(r);
    m_comandos.executa(m_insercoes->ppb21, {m_estado.itemAtual, ppb.numero, ppb.tipo});
    return true;
}

bool ModGravaVrtMensal::registro31(const RegistroLido& r)
{
    if (!registraProduto(r, c("31"), true))
        return false;
    m_insercoes->item31.executa(m_comandos, r, {m_estado.IdVrtLida, c("3")});
    if (!novaChave(m_estado.itemAtual, c("31"), QStringLiteral("Problema de Gravação no Registro 31 da mensal")))
        return false;
    for (int d = 1; d <= 4; ++d) {
        const QString n = QString::number(d);
        const QString local = r.texto(c("CD_LOCAL_DESTINO_") + n);
        const QString qtd = r.lido(c("QT_PROD_LOC_DEST_") + n);
        if (qtd.isEmpty() || local != n)
            continue;
        m_comandos.executa(m_insercoes->destino31, {m_estado.itemAtual, local, qtd});
    }
    return true;
}

bool ModGravaVrtMensal::registro32(const RegistroLido& r)
{
    if (!m_cadastros.ExisteProduto(r.lido(c("CD_INT_PRODUTO"))))
        return m_estado.erroRegistro(c("32"), QStringLiteral("Insumo não cadastrado"));
    const QString codigo = r.lido(c("CD_INT_INSUMO"));
    const QString nome = r.texto(c("NM_INT_INSUMO"));
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(c("32"), c("Erro ao cadastrar o Insumo"));
    if (!m_cadastros.ExisteNcm(r.texto(c("CD_NCM_INSUMO"))))
        return m_estado.erroRegistro(c("32"), QStringLiteral("NCM não cadastrada"));
    QString unidade = r.texto(c("NM_UNID_MED_INSUMO"));
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(c("32"), c("Erro ao cadastrar a Unidade de Medida"));

    m_insercoes->insumo32.executa(m_comandos, r, {m_estado.itemAtual});
    if (!novaChave(m_estado.insumoAtual, c("32"), QStringLiteral("Problema de Gravação no Registro 32 da mensal")))
        return false;
    m_estado.codigoInsumoAtual = codigo;
    m_estado.nomeInsumoAtual = nome;
    return true;
}

bool ModGravaVrtMensal::registro33(const RegistroLido& r)
{
    const QString codigo = r.lido(c("CD_INT_INSUMO"));
    // Registered again under the name kept from record 32: it exists, so it counts as a product changed.
    if (!m_cadastros.RegistraProduto(codigo, m_estado.nomeInsumoAtual))
        return m_estado.erroRegistro(c("33"), QStringLiteral("Insumo não cadastrado"));

    const Insercoes& ins = *m_insercoes;
    // A record 33 before any record 32 has no input: its row, with an empty key, is refused by the engine.
    const qint64 insumo = m_estado.insumoAtual.toLongLong();
    if (!m_estado.insumoAtual.isValid() || !m_estado.insumosComJustificativa.contains(insumo)) {
        QVariantList v = ins.justificativa33.valores(r, {m_estado.insumoAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa33, v);
        ins.justificativa33.executa(m_comandos, v);
        m_estado.insumosComJustificativa.insert(insumo);
    }
    if (!r.zeros(c("QT_TOT_INS_EST")) && !m_estado.insumosComTotal.contains(codigo)) {
        ins.total33.executa(m_comandos, r, {m_estado.IdVrtLida});
        m_estado.insumosComTotal.insert(codigo);
    }
    return true;
}

bool ModGravaVrtMensal::registro34(const RegistroLido& r)
{
    const InsercaoRegistro& nfa = m_insercoes->nfa34;
    QVariantList v = nfa.valores(r, {m_estado.IdVrtLida, m_estado.insumoAtual});
    ExcecoesLeitura::valorInsumoSoComDl288(r, nfa, v);
    nfa.executa(m_comandos, v);
    return true;
}

bool ModGravaVrtMensal::registro35(const RegistroLido& r)
{
    m_insercoes->di35.executa(m_comandos, r,
                              {m_estado.IdVrtLida, ComandosPreparados::texto(m_estado.nomeInsumoAtual),
                               m_estado.insumoAtual});
    // The monthly reader's own message for this record is the individual one, as the system has it.
    QVariant di;
    if (!novaChave(di, c("35"), QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 35 DA INDIVIDUAL")))
        return false;
    m_insercoes->valores35.executa(m_comandos, r, {di});
    return true;
}

bool ModGravaVrtMensal::registro36(const RegistroLido& r)
{
    m_insercoes->dsi36.executa(m_comandos, r, {m_estado.IdVrtLida, m_estado.insumoAtual});
    return true;
}

bool ModGravaVrtMensal::registro41(const RegistroLido& r)
{
    if (!registraProduto(r, c("41"), true))
        return false;
    m_insercoes->item41.executa(m_comandos, r, {m_estado.IdVrtLida, c("4")});
    m_estado.itemAtual = m_comandos.ultimaChave();
    return true;
}

#include "core/file/reading/ModGravaVrtMensal.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/reading/EstadoLeitura.h"
#include "core/file/reading/ExcecoesLeitura.h"
#include "core/file/reading/InsercaoRegistro.h"
#include "core/file/layout/RegistroLido.h"
#include "core/store/ComandosPreparados.h"

// Literals without an allocation: the readers name fields on every record.
using namespace Qt::Literals::StringLiterals;

namespace {
const QString Item = u"ITEM_VRT_MEN"_s;
const QString Destino = u"DESTINO_ITEM_VRT_MEN"_s;
}  // namespace

// The rows each record gives, with the keys and constants the reading adds in front of the layout's fields.
struct ModGravaVrtMensal::Insercoes {
    explicit Insercoes(const ModGravaVrtMensal& m)
        : item11(m.layout(11), Item, {u"ID_VRT_MICRO"_s, u"IND_MOD_INTERNACAO"_s}),
          destino11(m.layout(11), Destino, {u"ID_ITEM_VRT"_s}),
          justificativa11(m.layout(11), u"JUST_DIF_ALIQ_PROD_VRT_MEN"_s, {u"ID_ITEM_VRT"_s}),
          nfa12(m.layout(12), u"ITEM_NFA_PE_MEN"_s, {u"ID_DEST_PRODUTO"_s}),
          di13(m.layout(13), u"ITEM_DI_PE_MEN"_s, {u"ID_DEST_PRODUTO"_s}),
          valores13(m.layout(13), u"ITEM_IMPORT_288_PE_MEN"_s, {u"ID_ITEM_DI"_s}),
          dsi14(m.layout(14), u"ITEM_DSI_PE_MEN"_s, {u"ID_DEST_PRODUTO"_s}),
          item21(m.layout(21), Item, {u"ID_VRT_MICRO"_s, u"IND_MOD_INTERNACAO"_s}),
          destino21(m.layout(21), Destino, {u"ID_ITEM_VRT"_s}),
          item31(m.layout(31), Item, {u"ID_VRT_MICRO"_s, u"IND_MOD_INTERNACAO"_s}),
          insumo32(m.layout(32), u"INSUMO_ITEM_VRT_MEN"_s, {u"ID_ITEM_VRT"_s}),
          justificativa33(m.layout(33), u"JUST_DIF_ALIQ_INS_VRT_MEN"_s, {u"ID_INSUMO_ITEM"_s}),
          total33(m.layout(33), u"INSUMO_VRT"_s, {u"ID_VRT_MICRO"_s}, {u"CD_INT_INSUMO"_s}),
          nfa34(m.layout(34), u"ITEM_NFA_INS_MEN"_s, {u"ID_VRT_MICRO"_s, u"ID_INSUMO_ITEM"_s}),
          di35(m.layout(35), u"ITEM_DI_INS_MEN"_s, {u"ID_VRT_MICRO"_s, u"NM_INT_INSUMO"_s, u"ID_INSUMO_ITEM"_s}),
          valores35(m.layout(35), u"ITEM_IMPORT_288_INS_MEN"_s, {u"ID_ITEM_DI"_s}),
          dsi36(m.layout(36), u"ITEM_DSI_INS_MEN"_s, {u"ID_VRT_MICRO"_s, u"ID_INSUMO_ITEM"_s}),
          item41(m.layout(41), Item, {u"ID_VRT_MICRO"_s, u"IND_MOD_INTERNACAO"_s})
    {
    }
    const InsercaoRegistro item11, destino11, justificativa11, nfa12, di13, valores13, dsi14, item21, destino21,
        item31, insumo32, justificativa33, total33, nfa34, di35, valores35, dsi36, item41;
    // Record 31's four destination pairs and record 21's one number of two fields are not one field per column.
    const QString destino31 = InsercaoRegistro::monta(Destino, {u"ID_ITEM_VRT"_s, u"CD_LOCAL_DESTINO"_s,
                                                                u"QT_PROD_LOC_DEST"_s});
    const QString ppb21 = InsercaoRegistro::monta(u"ITEM_VRT_MEN_PI_COM_PPB"_s, {u"ID_ITEM_VRT"_s, u"NR_DCRE_DCR"_s,
                                                                                  u"CD_TIPO_COEF_REDUCAO"_s});
};

ModGravaVrtMensal::ModGravaVrtMensal(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros)
    : LeitorItens(TipoDeclaracao::Mensal, estado, comandos, cadastros),
      m_insercoes(std::make_unique<Insercoes>(*this))
{
}

ModGravaVrtMensal::~ModGravaVrtMensal() = default;

bool ModGravaVrtMensal::registraProduto(const RegistroLido& r, const QString& tipo, bool confereNcm)
{
    if (confereNcm && !m_cadastros.ExisteNcm(r.texto(u"CD_NCM_PRODUTO"_s)))
        return m_estado.erroRegistro(tipo, QStringLiteral("NCM não cadastrada"));
    if (!m_cadastros.RegistraProduto(r.lido(u"CD_INT_PRODUTO"_s), r.texto(u"NM_INT_PRODUTO"_s)))
        return m_estado.erroRegistro(tipo, u"Erro ao cadastrar o Produto"_s);
    QString unidade = r.texto(tipo == u"21"_s ? u"NM_UNID_MED_DEST"_s : u"NM_UNID_MED_PROD"_s);
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(tipo, u"Erro ao cadastrar a Unidade de Medida"_s);
    return true;
}

bool ModGravaVrtMensal::registro11(const RegistroLido& r)
{
    if (!registraProduto(r, u"11"_s, true))
        return false;
    const Insercoes& ins = *m_insercoes;
    // The several records 11 of one product (one per destination) fold back into one item.
    const QString codigo = r.lido(u"CD_INT_PRODUTO"_s);
    const auto existente = m_estado.itensPE.constFind(codigo);
    if (existente != m_estado.itensPE.constEnd()) {
        m_estado.itemAtual = existente.value();
    } else {
        ins.item11.executa(m_comandos, r, {m_estado.IdVrtLida, u"1"_s});
        if (!novaChave(m_estado.itemAtual, u"11"_s, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 11 DA MENSAL")))
            return false;
        m_estado.itensPE.insert(codigo, m_estado.itemAtual);
    }
    ins.destino11.executa(m_comandos, r, {m_estado.itemAtual});
    if (!novaChave(m_estado.destinoAtual, u"11"_s, QStringLiteral("Problema de Gravação no Registro 11 da mensal")))
        return false;

    // Only the first record 11 of a product fills the justification: later destinations' are not read.
    const qint64 item = m_estado.itemAtual.toLongLong();
    if (!m_estado.itensComJustificativa.contains(item)) {
        QVariantList v = ins.justificativa11.valores(r, {m_estado.itemAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa11, v);
        ins.justificativa11.executa(m_comandos, v);
        m_estado.itensComJustificativa.insert(item);
    }
    m_estado.localDestinoAtual = r.texto(u"CD_LOCAL_DESTINO"_s);
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
    if (!novaChave(di, u"13"_s, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 13 DA MENSAL")))
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
    if (!registraProduto(r, u"21"_s, false))
        return false;
    // No search, unlike record 11: each destination of the product comes back as an item of its own.
    m_insercoes->item21.executa(m_comandos, r, {m_estado.IdVrtLida, u"2"_s});
    if (!novaChave(m_estado.itemAtual, u"21"_s, QStringLiteral("Problema de Gravação no Registro 21 da mensal")))
        return false;
    m_insercoes->destino21.executa(m_comandos, r, {m_estado.itemAtual});
    m_estado.destinoAtual = m_comandos.ultimaChave();
    const ExcecoesLeitura::NumeroPpb ppb = ExcecoesLeitura::numeroPpb(r);
    m_comandos.executa(m_insercoes->ppb21, {m_estado.itemAtual, ppb.numero, ppb.tipo});
    return true;
}

bool ModGravaVrtMensal::registro31(const RegistroLido& r)
{
    if (!registraProduto(r, u"31"_s, true))
        return false;
    m_insercoes->item31.executa(m_comandos, r, {m_estado.IdVrtLida, u"3"_s});
    if (!novaChave(m_estado.itemAtual, u"31"_s, QStringLiteral("Problema de Gravação no Registro 31 da mensal")))
        return false;
    for (int d = 1; d <= 4; ++d) {
        const QString n = QString::number(d);
        const QString local = r.texto(u"CD_LOCAL_DESTINO_"_s + n);
        const QString qtd = r.lido(u"QT_PROD_LOC_DEST_"_s + n);
        if (qtd.isEmpty() || local != n)
            continue;
        m_comandos.executa(m_insercoes->destino31, {m_estado.itemAtual, local, qtd});
    }
    return true;
}

bool ModGravaVrtMensal::registro32(const RegistroLido& r)
{
    if (!m_cadastros.ExisteProduto(r.lido(u"CD_INT_PRODUTO"_s)))
        return m_estado.erroRegistro(u"32"_s, QStringLiteral("Insumo não cadastrado"));
    const QString codigo = r.lido(u"CD_INT_INSUMO"_s);
    const QString nome = r.texto(u"NM_INT_INSUMO"_s);
    if (!m_cadastros.RegistraProduto(codigo, nome))
        return m_estado.erroRegistro(u"32"_s, u"Erro ao cadastrar o Insumo"_s);
    if (!m_cadastros.ExisteNcm(r.texto(u"CD_NCM_INSUMO"_s)))
        return m_estado.erroRegistro(u"32"_s, QStringLiteral("NCM não cadastrada"));
    QString unidade = r.texto(u"NM_UNID_MED_INSUMO"_s);
    if (!m_cadastros.RegistraUnidade(unidade))
        return m_estado.erroRegistro(u"32"_s, u"Erro ao cadastrar a Unidade de Medida"_s);

    m_insercoes->insumo32.executa(m_comandos, r, {m_estado.itemAtual});
    if (!novaChave(m_estado.insumoAtual, u"32"_s, QStringLiteral("Problema de Gravação no Registro 32 da mensal")))
        return false;
    m_estado.codigoInsumoAtual = codigo;
    m_estado.nomeInsumoAtual = nome;
    return true;
}

bool ModGravaVrtMensal::registro33(const RegistroLido& r)
{
    const QString codigo = r.lido(u"CD_INT_INSUMO"_s);
    // Registered again under the name kept from record 32: it exists, so it counts as a product changed.
    if (!m_cadastros.RegistraProduto(codigo, m_estado.nomeInsumoAtual))
        return m_estado.erroRegistro(u"33"_s, QStringLiteral("Insumo não cadastrado"));

    const Insercoes& ins = *m_insercoes;
    // A record 33 before any record 32 has no input: its row, with an empty key, is refused by the engine.
    const qint64 insumo = m_estado.insumoAtual.toLongLong();
    if (!m_estado.insumoAtual.isValid() || !m_estado.insumosComJustificativa.contains(insumo)) {
        QVariantList v = ins.justificativa33.valores(r, {m_estado.insumoAtual});
        ExcecoesLeitura::aliquotaSoComJustificativa(r, ins.justificativa33, v);
        ins.justificativa33.executa(m_comandos, v);
        m_estado.insumosComJustificativa.insert(insumo);
    }
    if (!r.zeros(u"QT_TOT_INS_EST"_s) && !m_estado.insumosComTotal.contains(codigo)) {
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
    if (!novaChave(di, u"35"_s, QStringLiteral("ERRO NA RECUPERAÇÃO DO REGISTRO 35 DA INDIVIDUAL")))
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
    if (!registraProduto(r, u"41"_s, true))
        return false;
    m_insercoes->item41.executa(m_comandos, r, {m_estado.IdVrtLida, u"4"_s});
    m_estado.itemAtual = m_comandos.ultimaChave();
    return true;
}

#pragma once
// Where a picker writes what the user chose. An editor leaves a caller key in the session (ChamadorProduto,
// ChamadorNCM, ChamadorMoeda) before it shows a picker; the key names the editor's code field and, for
// products and NCM, the field beside it. Each editor registers its fields once, when it builds them:
//
//   DestinosEscolha::produto().registra("produto100NacionalMensal", txtCodProduto, txtDescProduto, this);
//   DestinosEscolha::ncm().registra("produtoPEMensal", mskNCMPE, txtUnidadeEstPE, this);
//   DestinosEscolha::moeda().registra("produtoPEMensalDIProd", txtMoedaProdDI, nullptr, this);
//
// Writing the code into the field emits the field's own change signal, so that its change step runs as after
// typing. A field that is not a QLineEdit is served by a function instead:
//
//   DestinosEscolha::ncm().registra("produto", [this](const QString& ncm, const QString& unidade) {...}, this);
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>

class QLineEdit;

class DestinosEscolha {
public:
    using Entrega = std::function<void(const QString& codigo, const QString& complemento)>;

    // The keys the pickers know, as the editors leave them.
    static const QStringList& ChavesProduto();
    static const QStringList& ChavesNcm();
    static const QStringList& ChavesMoeda();

    // The three tables: products (code and description), NCM (code and statistical unit), currencies (code).
    static DestinosEscolha& produto();
    static DestinosEscolha& ncm();
    static DestinosEscolha& moeda();

    // Registers the target of `chave`. The entry goes when `dono` is destroyed; a field destroyed earlier is
    // simply not written. A key outside the known list is refused (false), so that a misspelled key shows at
    // once in the editor's tests.
    bool registra(const QString& chave, QLineEdit* codigo, QLineEdit* complemento, QObject* dono);
    bool registra(const QString& chave, Entrega entrega, QObject* dono);
    void remove(const QString& chave);
    bool registrada(const QString& chave) const;

    // The trimmed text of the key's code field, where a picker starts its filter; empty when unknown.
    QString valorAtual(const QString& chave) const;

    // Writes the choice into the key's fields; false when nothing is registered under the key.
    bool entrega(const QString& chave, const QString& codigo, const QString& complemento = QString()) const;

private:
    explicit DestinosEscolha(const QStringList* chaves) : m_chaves(chaves) {}
    struct Destino {
        QPointer<QLineEdit> codigo;
        QPointer<QLineEdit> complemento;
        Entrega entrega;
        QPointer<QObject> dono;
    };
    bool guarda(const QString& chave, Destino destino, QObject* dono);

    const QStringList* m_chaves;
    QHash<QString, Destino> m_destinos;
};

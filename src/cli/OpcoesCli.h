#pragma once
// The command line of vrt-cli: a command, its arguments and its options, read once.
#include <QString>
#include <QStringList>

struct OpcoesCli {
    QString comando;          // copiar, gravar, importar, listar, tabela, verificar
    QStringList argumentos;   // what is not an option
    QString banco;            // --banco ARQUIVO
    QString pasta;            // --pasta DIR
    bool backup = false;      // --backup
    bool restaurar = false;   // --restaurar
    bool substituir = false;  // --substituir
    QString retificacao;      // --retificacao NUMERO: copiar makes the rectification, with this NR_VRT
    bool ajuda = false;       // --help / -h
    QString erro;             // a usage error, in words; empty when the line is good

    static OpcoesCli le(const QStringList& argumentos);
};

// The text of --help.
QString TextoAjuda();

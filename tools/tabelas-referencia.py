#!/usr/bin/env python3
"""The delivered reference tables (currencies, states, commercial units, NCM) and their official sources.

The tables are kept in our own format beside the other delivered rows, one file per table named after it
(MOEDA.tsv, ...): lines beginning with "#" say where the rows come from; the first other line names the
columns; every further line is one row, its values separated by a tab. vrt-criabanco loads them.

    tabelas-referencia.py confere [--fontes PASTA] [--tabelas PASTA]
        checks every table against the public file it was taken from; status 0 when all agree, 1 when one
        differs, 77 (skipped) when the folder of source files is not at hand.
    tabelas-referencia.py gera [--fontes PASTA] [--tabelas PASTA]
        writes the tables again from the source files (to take a new edition: replace the source file, adjust
        the edition text below, run this, then the tests).

Only the Python standard library is used.
"""
import argparse
import csv
import io
import json
import os
import re
import sys
import xml.etree.ElementTree as ET

RAIZ = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
FONTES_PADRAO = os.path.join(os.path.dirname(RAIZ), "shared", "fixtures", "refdata")
TABELAS_PADRAO = os.path.join(RAIZ, "src", "core", "store", "dados")
if not os.path.isdir(TABELAS_PADRAO):
    TABELAS_PADRAO = os.path.join(RAIZ, "src", "store", "dados")

PULADO = 77
LARGURA_DESCRICAO_NCM = 80
LARGURA_UNIDADE_ITEM = 20


def texto(caminho, codificacao="utf-8-sig"):
    with open(caminho, encoding=codificacao, newline="") as f:
        return f.read()


def moedas(fontes):
    """The Central Bank's currency table: code and name of each entry's ":dados:" block."""
    arquivo = "moedas_bcb_2011.yml"
    padrao = re.compile(r":dados:\n\s+:codigo: '(\d{3})'\n\s+:nome: ([^\n]+)\n")
    linhas = [(m.group(1), m.group(2).strip().strip("'\"")) for m in padrao.finditer(texto(os.path.join(fontes, arquivo)))]
    return arquivo, sorted(linhas)


def estados(fontes):
    """IBGE's federative units: the columns "uf" and "nome"."""
    arquivo = "uf_estados_ibge.csv"
    leitor = csv.DictReader(io.StringIO(texto(os.path.join(fontes, arquivo))))
    return arquivo, sorted((l["uf"].strip(), l["nome"].strip()) for l in leitor)


def unidades(fontes):
    """The commercial units of the SEFAZ/ENCAT table, as the source extracted them: every upper-case code once,
    in file order, numbered "01", "02", ... (lower-case codes are imperial and time units, no invoice unit)."""
    arquivo = "unidades_medida_comercial_sefaz2016_odoo.xml"
    codigos = []
    for registro in ET.parse(os.path.join(fontes, arquivo)).getroot().iter("record"):
        if registro.get("model") != "uom.uom":
            continue
        for campo in registro.iter("field"):
            if campo.get("name") == "code":
                codigo = (campo.text or "").strip()
                if codigo and codigo == codigo.upper() and codigo not in codigos:
                    codigos.append(codigo)
    return arquivo, [("%02d" % (i + 1), c) for i, c in enumerate(codigos)]


def unidade_estatistica(nome, sigla):
    """An item keeps the statistical unit in 20 characters: a longer name gives way to its abbreviation."""
    return nome if len(nome) <= LARGURA_UNIDADE_ITEM else sigla


def descricao_ncm(bruta):
    """The description as a picker shows it: no HTML tags, no hierarchy dashes, an apostrophe as the reference
    import stores it, at most 80 characters."""
    d = re.sub(r"<[^>]+>", "", bruta)
    d = re.sub(r"^[-\s]+", "", d).strip()
    d = re.sub(r"\s+", " ", d).replace("'", "\u00b4")
    return d[:LARGURA_DESCRICAO_NCM].rstrip()


def ncm(fontes):
    """Every 8-digit code of the Siscomex NCM table in force, with the Comex Stat statistical unit (empty for the
    few codes that table does not have yet)."""
    arquivo = "ncm_siscomex_vigente_2025-05-13.json"
    siscomex = json.loads(texto(os.path.join(fontes, arquivo)))
    nomes = {}
    with open(os.path.join(fontes, "ncm_unidade_estatistica_comexstat.csv"), encoding="ascii", newline="") as f:
        for l in csv.DictReader(f, delimiter=";"):
            nomes[l["CO_UNID"]] = unidade_estatistica(l["NO_UNID"].strip(), l["SG_UNID"].strip())
    unidade_do_codigo = {}
    with open(os.path.join(fontes, "ncm_comexstat_NCM.csv"), encoding="latin-1", newline="") as f:
        for l in csv.DictReader(f, delimiter=";"):
            unidade_do_codigo[l["CO_NCM"]] = nomes.get(l["CO_UNID"], "")
    linhas = []
    for n in siscomex["Nomenclaturas"]:
        codigo = n["Codigo"].replace(".", "")
        if len(codigo) == 8:
            linhas.append((codigo, descricao_ncm(n["Descricao"]), unidade_do_codigo.get(codigo, "")))
    return arquivo, sorted(linhas), siscomex["Data_Ultima_Atualizacao_NCM"], siscomex["Ato"]


def tabelas(fontes):
    """Each table: file name, the header comment lines, its columns and its rows."""
    a_moedas, l_moedas = moedas(fontes)
    a_estados, l_estados = estados(fontes)
    a_unidades, l_unidades = unidades(fontes)
    a_ncm, l_ncm, vigencia, ato = ncm(fontes)
    return [
        ("MOEDA.tsv", [
            "Moedas: tabela de moedas do Banco Central do Brasil (PTAX), edição de dezembro de 2011,",
            "sem as moedas que já tinham data de exclusão. Código de 3 dígitos e nome.",
            "Conferida com %s por tools/tabelas-referencia.py." % a_moedas,
        ], ["CD_MOEDA", "NM_MOEDA"], l_moedas),
        ("UNIDADE_FEDERATIVA.tsv", [
            "Unidades da federação: sigla e nome das 27 unidades (26 estados e o Distrito Federal), do IBGE.",
            "Conferida com %s por tools/tabelas-referencia.py." % a_estados,
        ], ["CD_UF_DESTINO", "NM_UF"], l_estados),
        ("UNIDADE_MEDIDA.tsv", [
            "Unidades de medida comercial: códigos da Tabela de Unidades de Medida Comercial da SEFAZ/ENCAT",
            "(portal da NF-e), edição de 05/07/2016, numerados 01, 02, ... na ordem da tabela. \"UN\" e \"PÇ\"",
            "estão onde a tabela oficial escreve \"UNID\" e \"PC\", como as notas fiscais costumam trazê-los.",
            "Conferida com %s por tools/tabelas-referencia.py." % a_unidades,
        ], ["CD_UNID_MEDIDA", "NM_MEDIDA"], l_unidades),
        ("NCM_ITEM.tsv", [
            "NCM: os códigos de 8 dígitos da Tabela NCM do Siscomex (Portal Único), %s (%s)." % (vigencia.lower(), ato),
            "Descrição sem os traços da hierarquia e sem marcas HTML, até 80 caracteres. Unidade estatística da",
            "tabela NCM do Comex Stat (MDIC/SECEX), pelo nome (pela sigla quando o nome passa de 20 caracteres);",
            "vazia nos códigos que aquela tabela ainda não tem. Para outra edição: Ferramentas > Tabelas >",
            "Importação > NCM com um arquivo de tabela de NCM.",
            "Conferida com %s e ncm_comexstat_NCM.csv por tools/tabelas-referencia.py." % a_ncm,
        ], ["CD_NCM_PRODUTO", "DESCR_NCM_PRODUTO", "NM_UNID_MED_EST"], l_ncm),
    ]


def conteudo(cabecalho, colunas, linhas):
    saida = ["# " + c for c in cabecalho]
    saida.append("\t".join(colunas))
    for linha in linhas:
        if any("\t" in v or "\n" in v for v in linha):
            raise ValueError("valor com tabulação ou quebra de linha: %r" % (linha,))
        saida.append("\t".join(linha))
    return "\n".join(saida) + "\n"


def linhas_da_tabela(caminho):
    """The rows of one of our tables, with its column line first."""
    with open(caminho, encoding="utf-8", newline="") as f:
        return [l.rstrip("\n").split("\t") for l in f if not l.startswith("#")]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("comando", choices=["confere", "gera"])
    parser.add_argument("--fontes", default=FONTES_PADRAO)
    parser.add_argument("--tabelas", default=TABELAS_PADRAO)
    args = parser.parse_args()
    if not os.path.isdir(args.fontes):
        print("tabelas-referencia: pasta das fontes ausente (%s); nada a conferir." % args.fontes)
        return PULADO
    diferencas = 0
    for nome, cabecalho, colunas, linhas in tabelas(args.fontes):
        caminho = os.path.join(args.tabelas, nome)
        if args.comando == "gera":
            with open(caminho, "w", encoding="utf-8", newline="") as f:
                f.write(conteudo(cabecalho, colunas, linhas))
            print("%s: %d linhas" % (nome, len(linhas)))
            continue
        esperado = [list(colunas)] + [list(l) for l in linhas]
        lido = linhas_da_tabela(caminho) if os.path.exists(caminho) else []
        if lido == esperado:
            print("%s: %d linhas conferem com a fonte" % (nome, len(linhas)))
            continue
        diferencas += 1
        faltam = [l for l in esperado if l not in lido][:3]
        sobram = [l for l in lido if l not in esperado][:3]
        print("%s: difere da fonte (%d linhas, esperadas %d); faltam %s; sobram %s"
              % (nome, max(len(lido) - 1, 0), len(linhas), faltam, sobram))
    return 1 if diferencas else 0


if __name__ == "__main__":
    sys.exit(main())

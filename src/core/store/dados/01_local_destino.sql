-- The four places of destination; the code is the digit of the declaration file.
INSERT INTO LOCAL_DESTINO (CD_LOCAL_DESTINO, NM_LOCAL_DESTINO) VALUES ('1', 'Estados AC, AM, RO e RR');
INSERT INTO LOCAL_DESTINO (CD_LOCAL_DESTINO, NM_LOCAL_DESTINO) VALUES ('2', 'Demais Unidades da Federação');
INSERT INTO LOCAL_DESTINO (CD_LOCAL_DESTINO, NM_LOCAL_DESTINO) VALUES ('3', 'Área de livre comércio em AC, AM, RO ou RR');
INSERT INTO LOCAL_DESTINO (CD_LOCAL_DESTINO, NM_LOCAL_DESTINO) VALUES ('4', 'Área de livre comércio em outra UF');

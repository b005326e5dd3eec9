0	Contraste : bandes claires et sombres	214	245	255
1	vert sapin	6	55	43
2	blanc	255	255	255
3	marine	11	31	77
4	jaune pâle	255	243	166
5	bordeaux	74	13	42
6	bleu pâle	214	245	255
7	vert sapin	6	55	43

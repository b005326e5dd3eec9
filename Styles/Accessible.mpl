0	Paul Tol, Colour Schemes, SRON/EPS/TN/09-002 (2021) : gamme « light »	238	136	102
1	gris clair	221	221	221
2	bleu clair	119	170	221
3	poire	187	204	51
4	rose	255	170	187
5	olive	170	170	0
6	menthe	68	187	153
7	jaune clair	238	221	136
8	cyan clair	153	221	255
9	orange	238	136	102
10	gris clair	221	221	221

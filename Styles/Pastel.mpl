0	Pastel : teintes douces	200	230	224
1	sable	239	217	195
2	ciel	207	226	243
3	abricot	252	229	205
4	lilas	221	211	238
5	rose	244	204	214
6	tilleul	213	232	200
7	vanille	255	242	184
8	menthe	200	230	224
9	sable	239	217	195

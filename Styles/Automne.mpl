0	Automne : ocres et mousses	240	221	184
1	lichen	185	181	154
2	miel	232	192	125
3	terre cuite	217	160	124
4	pêche	235	201	181
5	mousse	201	196	138
6	citrouille	230	164	92
7	noisette	214	177	154
8	blé	240	221	184
9	lichen	185	181	154

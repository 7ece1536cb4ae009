Planet Name	Owner	Starbase Type	Report Age	Population	Value	Production Queue	Mines	Factories	Def %	S Iron	S Bora	S Germ	Iron MR	Bora MR	Germ MR	Iron MC	Bora MC	Germ MC	Resources	Grav	Temp	Rad	GravOrig	TempOrig	RadOrig	Terra	Cap	Scan	Pen	Driver	Warp	Route	GateRange	GateMass	PctDmg
Yrandar	Veldt Kin	Starter Colony	14	82300	-30%				0%	89	149	67				22	64	47		0.96g	-80ºC	27mR	1.04g	-80ºC	25mR	-30%
Druirria			20		-30%					0	0	0				84	18	43		0.44g	172ºC	32mR	0.44g	172ºC	32mR	-23%
Belirmir's Haven	Veldt Kin	Starter Colony	15	92000	-22%				0%	127	138	77				85	73	30		0.62g	-184ºC	59mR	0.67g	-184ºC	62mR	-15%
Lantern Hill	Veldt Kin	Orbital Fort	13	212600	-15%				0%	171	147	78				54	67	54		0.31g	168ºC	60mR	0.22g	168ºC	65mR	-15%
Wenamede's Folly			16		-30%					0	0	0				83	13	46		1.16g	-104ºC	1mR	1.16g	-104ºC	1mR	-30%
Dovecote			17		33%					0	0	0				25	53	62		1.04g	100ºC	55mR	1.04g	100ºC	55mR	84%
Ashmere			12		-30%					0	0	0				46	34	24		0.17g	-36ºC	88mR	0.17g	-36ºC	88mR	-27%
Longshadow			17		-15%					0	0	0				33	81	60		1.84g	60ºC	34mR	1.84g	60ºC	34mR	-11%
Sarorax Prime	Veldt Kin	Orbital Fort	8	235000	-30%				0%	87	191	284				29	49	59		1.08g	-156ºC	37mR	1.28g	-156ºC	32mR	-28%
Candlewick			9		-29%					0	0	0				71	58	52		1.04g	-104ºC	39mR	1.04g	-104ºC	39mR	-21%
Darolon-40			12		-14%					0	0	0				67	71	43		1.16g	196ºC	43mR	1.16g	196ºC	43mR	-2%
Emberlight	Veldt Kin	Space Dock	9	457900	-15%				0%	366	235	117				66	32	66		0.53g	184ºC	54mR	0.40g	184ºC	59mR	-11%
Wainscot	Veldt Kin	Orbital Fort	6	184500	-27%				0%	90	231	115				82	52	34		0.25g	112ºC	41mR	0.19g	112ºC	36mR	-24%
Palisade	Veldt Kin		8																							
Glasswing			6		-22%					0	0	0				56	81	49		0.20g	16ºC	75mR	0.20g	16ºC	75mR	-15%
Barrowdeep			8		-12%					0	0	0				31	35	47		5.84g	184ºC	84mR	5.84g	184ºC	84mR	-3%
Elathpol	Ashkelar	Space Dock	0	294400	65%	      Large Freighter 4	294	294	80.64%	962	727	330	221	256	246	63	73	70	590	1.80g	100ºC	63mR	2.72g	68ºC	55mR	65%	45	220	0		0		300	500	0
Joransk	Söljar		11	40000	-26%				2%	30	36	47				33	43	63		1.04g	0ºC	16mR	1.04g	0ºC	16mR	-18%
Needlepoint			7		-36%					0	0	0				62	46	58		7.52g	-96ºC	95mR	7.52g	-96ºC	95mR	-25%
Wenundpol	Ashkelar	Space Station	0	463200	79%	      Large Freighter 4	463	463	27.17%	751	257	491	183	238	210	33	43	38	930	1.24g	112ºC	63mR	0.92g	88ºC	55mR	79%	58	220	0		0		300	500	0
Wenedwyn			7		-30%					0	0	0				52	61	70		0.40g	152ºC	7mR	0.40g	152ºC	7mR	-26%
Oreththys	Halvorane	Space Station	12	494700	-15%				54%	549	584	244				72	32	77		1.16g	-104ºC	85mR	1.48g	-136ºC	85mR	-15%
409	Ix'Amar		2																							
Fenedphia-40	Ashkelar	Ultra Station	0	917200	100%	      Large Freighter 4	917	917	97.92%	137	173	137	495	638	495	45	58	45	1841	1.44g	112ºC	71mR	1.44g	112ºC	71mR	100%	91	220	0		0		-1	-1	0
Skaogan-52			4		-42%					0	0	0				52	48	32		0.55g	-192ºC	23mR	0.55g	-192ºC	23mR	-34%
Hammerstone	Ashkelar		0	579400	78%	      --- Queue is Empty ---	579	579	96.93%	1048	438	1150	513	104	645	74	15	93	1162	1.16g	112ºC	65mR	0.86g	96ºC	57mR	78%	74	220	0		0		0	0	0
Talotor-58	Ashkelar	Orbital Fort	0	48800	13%	      --- Queue is Empty ---	38	42	22.08%	49	51	73	16	13	16	36	30	36	90	0.78g	48ºC	66mR	0.67g	28ºC	61mR	28%	37	220	0		0		0	0	0
2562	Ashkelar	Space Station	0	840300	100%	      Defense (Auto Build) 10	840	840	93.17%	2815	2206	1952	745	624	594	74	62	59	1687	1.44g	112ºC	71mR	1.48g	140ºC	70mR	100%	84	220	0		0		0	0	0
Keloneth	Ashkelar	Space Station	0	726300	88%	      Colony Ship 2	726	726	67.21%	394	2024	427	304	670	827	35	77	95	1458	1.52g	112ºC	76mR	1.84g	104ºC	84mR	88%	82	220	0		0		0	0	0
007	Ix'Amar	Orbital Fort	0	68800	61%				2%	40	35	71				24	28	89		1.96g	100ºC	72mR	1.96g	100ºC	72mR	92%
Isanra's Rest			5		-43%					0	0	0				96	96	60		0.25g	-168ºC	40mR	0.25g	-168ºC	40mR	-35%
Calevos's Hold	Ix'Amar	Orbital Fort	5	62400	-3%				13%	24	25	25				32	48	63		0.69g	116ºC	69mR	0.67g	120ºC	70mR	59%
Driftwood	Halvorane		10	204200	-15%				22%	85	346	56				30	64	41		0.75g	-84ºC	78mR	0.67g	-72ºC	78mR	-15%
2279	Halvorane	Orbital Fort	10	77700	-30%				20%	94	84	41				58	37	34		1.52g	-32ºC	20mR	1.56g	-28ºC	20mR	-25%
Noristthan-61	Ix'Amar		1	44800	84%				6%	39	23	30				64	51	62		1.56g	108ºC	66mR	1.56g	108ºC	66mR	100%
Rosathra-57			1		-40%					0	0	0				43	85	35		5.84g	-72ºC	39mR	5.84g	-72ºC	39mR	-24%
Tanglewood	Ashkelar		0	144600	93%	      --- Queue is Empty ---	144	144	57.80%	80	171	228	44	75	82	26	44	48	289	1.48g	112ºC	74mR	1.76g	92ºC	81mR	96%	15	220	0		0		0	0	0
Calellia			8		-30%					0	0	0				65	40	20		0.29g	-96ºC	85mR	0.29g	-96ºC	85mR	-30%
Garagard			8		31%					0	0	0				41	11	45		0.83g	156ºC	73mR	0.83g	156ºC	73mR	82%
Uladar-51			11		-17%					0	0	0				51	39	30		1.48g	-144ºC	51mR	1.48g	-144ºC	51mR	-15%
Sparrowhawk			10		-15%					0	0	0				97	72	67		0.12g	80ºC	87mR	0.12g	80ºC	87mR	-15%
Yarrow			11		19%					0	0	0				38	82	54		1.60g	48ºC	85mR	1.60g	48ºC	85mR	76%
Xanedra	Ix'Amar		3																							
Kelathwyn Prime			16		-45%					0	0	0				70	72	85		0.21g	-104ºC	36mR	0.21g	-104ºC	36mR	-39%
Halolon	Ix'Amar	Space Dock	8	250000	8%				78%	150	258	250				60	87	70		0.83g	60ºC	58mR	0.71g	40ºC	53mR	27%
3691			15		-15%					0	0	0				58	75	33		1.64g	104ºC	20mR	1.64g	104ºC	20mR	-15%
Isundgard Reach	Ix'Amar	Orbital Fort	9	76100	-15%				30%	58	86	126				25	82	55		0.55g	32ºC	77mR	0.51g	16ºC	81mR	-8%
Rosothan			13		-13%					0	0	0				48	58	51		0.55g	40ºC	77mR	0.55g	40ºC	77mR	-4%
Darelgard-16	Brennock	Orbital Fort	9	69600	-3%				17%	53	61	60				48	32	67		1.28g	60ºC	50mR	1.24g	56ºC	51mR	59%
Jorathmede	Tamarisk	Orbital Fort	21	40700	-28%				19%	41	43	104				44	35	71		0.54g	-124ºC	60mR	0.60g	-124ºC	55mR	-15%
Daristbris's Watch	Ix'Amar		9	112100	-13%				47%	206	71	67				56	63	27		0.56g	36ºC	68mR	0.51g	16ºC	73mR	-8%
Wenithan	Brennock		18	27200	-26%				4%	21	20	15				37	36	70		1.52g	-8ºC	40mR	1.52g	-12ºC	39mR	-12%
Wolfram	Ix'Amar	Gatehouse	13	188400	-1%				38%	206	126	212				45	30	69		0.73g	100ºC	66mR	0.64g	120ºC	66mR	49%
Fenacor	Brennock	Space Dock	13	121400	24%				50%	141	439	105				43	69	36		1.92g	84ºC	56mR	2.72g	84ºC	61mR	83%
Rushlight			15		-16%					0	0	0				78	44	46		0.62g	8ºC	80mR	0.62g	8ºC	80mR	-1%
Ulanpol-49	Brennock	Long Watch	19	121900	48%				50%	150	186	35				43	79	30		1.16g	92ºC	59mR	0.96g	112ºC	64mR	93%
Iselphia			23		-15%					0	0	0				16	33	31		1.24g	-108ºC	76mR	1.24g	-108ºC	76mR	-15%

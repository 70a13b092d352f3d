DEFINE
    TABLESTYLE "s.json"

rundef p
	title "t"
	selection
	(province == "01" or 
province == "02") and person.age >== 3
	dictionary "x.kxdb"
	decimals 2
	selectionlabel The South
	filterlabel it's
table tN1 frequency person.sex
	by person.grp
	tally person.age

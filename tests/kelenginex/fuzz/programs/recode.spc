define PERSON.C
	as recode PERSON.AGE
	(LOWEST : 14 = 1)
	(15 : HIGHEST = 2)
	else 9
	type INTEGER
	range (1 : 2) (9 : 9)
	varlabel "x"
	valuelabels
		1 "a"
		2 "b"
	doc "text"
	default 0
	missing 98
	notapp 99
	sensitive 3
	like PERSON.SEX
	save "f.kbf"
	overwrite
	alias A
	group g
FREQ PERSON.C

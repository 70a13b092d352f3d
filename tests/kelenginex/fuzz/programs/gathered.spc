define DISTRICT.R
	as ratio PERSON.AGE
	(0 : 14)
	decimals 2
define DISTRICT.F
	as fraction
	num PERSON.AGE (1 : 3)(5 : 5)
	denom PERSON.SEX (1 : 2)
define DISTRICT.I
	as indicator
	num PERSON.AGE
	denom HOUSEHOLD.ROOMS
define DISTRICT.N as count PERSON weight HOUSEHOLD.WEIGHT filter PERSON.AGE > 4
define DISTRICT.M as median PERSON.AGE
AREALIST  DISTRICT, DISTRICT.R, DISTRICT.N
SORT DESC DISTRICT.N 0

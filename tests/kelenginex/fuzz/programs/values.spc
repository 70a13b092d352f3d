define PERSON.S
	as switch 
	case PERSON.AGE > 1
	assign 2
	else 0
define PERSON.N
	as number HOUSEHOLD
define PERSON.R
	as sample Random 100
define PERSON.Y
	as sample Systematic 10
	type BOOL
define PERSON.E as 1 + 2 type real
FREQ PERSON.S BY PERSON.N, PERSON.R FILTER PERSON.Y

// Groups the codes of a variable into a new one

/* Codes below 1 and above 99 take the last value;
   what was not asked takes the default. */

define Entity.NewVar
  as recode Entity.OldVar
  (1 : 9 = 2)
  (10 : 99 = 3)
  else 4
  varlabel "Variable Label"

  valuelabels
    2 "Value Label 1"
    3 "Value Label 2"

  type integer
  range 2 : 3
  default 8

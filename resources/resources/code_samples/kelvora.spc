// Groups the codes of a variable

/* What has no code here
   takes the default. */

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

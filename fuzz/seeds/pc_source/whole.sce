; Adventure Name: Seed
/CTL
; Null word character is an underline
_ 
/VOC
NORTH     2   noun
GO       20   verb
LIGHT    21   verb
LIGHT    50   noun
RED       2   adjective
UNDER     6   preposition
SLOWL     3   adverb
AND       2   conjugation
IT        2   pronoun
/STX
/33
>
/MTX
/0
Fish & <ht>chips.

Tail ; comment
/1
/OTX
/0
A lamp
/LTX
/0
Hall.
/1
Cellar.
/CON
/0
NORTH 1 GO 0
/1
GO 0
/OBJ
/0 CARRIED 3 Y N LIGHT RED
/PRO 0
LIGHT _  PREP UNDER
 BELL
 PLACE 0 CARRIED SET 60
_ LIGHT NOUN2 _ MESSAGE 0
/PRO 1
_ _ NEWLINE
/PRO 7
* _ DONE
/FLG This is added

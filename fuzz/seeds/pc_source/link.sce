/CTL
_
/VOC
GO 20 verb
/LNK part2

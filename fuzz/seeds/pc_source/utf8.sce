/CTL
_
/VOC
CAFÉ 20 verb
/PRO 0
CAFÉ _ DONE

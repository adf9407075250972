; Adventure Name: The Signal Box
;
; A night's work at Marl Cutting. README.md says how to play it.
;
; Flags
;   27  the player typed QUIT
;   61  turn for which the clock was last put on
;   62  half minutes            63  minutes             64  hours
;   65  the key under the bucket has been found
;   66  the door of the box is unlocked
;   67  the stove is lit
;   68  the kettle: 0 cold, 1 hot, 2 empty
;   69  turns that the kettle has stood on the lit stove
;   70  the spanner is out of the locking
;   71  the red lever is back and the home signal at danger
;   72  the points are free of ice
;   73  the points are set for the loop
;   74  the signal lamp: 0 dry, 1 filled, 2 lit
;   75  the paraffin can is full
;   76  the hand lamp is full
;   77  the fog signals are on the rail
;   78  Amos: 0 not spoken to, 1 awake, 2 in the coat, 3 on the trolley, 4 in the box
;   79  the wedge is out from under the trolley
;   80  the cupboard is open
;   81  how far the mail has come: 0 not heard, 1 whistled, 2 in the rails
;   82  the hand lamp has been lit once
;   83  the verb of the last sentence, when it may serve for the next: TAKE LAMP AND MATCHES
;   90  a GET ALL is running
;
/CTL
; Null word character is an underline
_
/VOC
; Movement
N       2   noun
NORTH   2   noun
S       3   noun
SOUTH   3   noun
E       4   noun
EAST    4   noun
W       5   noun
WEST    5   noun
NE      6   noun
NW      7   noun
SE      8   noun
SW      9   noun
U       10  verb
UP      10  verb
D       11  verb
DOWN    11  verb
IN      12  verb
ENTER   12  verb
INSID   12  verb
OUT     13  verb
EXIT    13  verb
LEAVE   13  verb
; Verbs that can be done in the dark
GET     20  verb
TAKE    20  verb
PICK    20  verb
CARRY   20  verb
RESCU   20  verb
DROP    21  verb
WEAR    22  verb
REMOV   23  verb
PUT     24  verb
PLACE   24  verb
LAY     24  verb
SET     24  verb
FIX     24  verb
STRAP   24  verb
LOOK    25  verb
L       25  verb
INVEN   26  verb
INV     26  verb
I       26  verb
SCORE   27  verb
QUIT    28  verb
Q       28  verb
SAVE    29  verb
LOAD    30  verb
RESTO   30  verb
RAMSA   31  verb
RAMLO   32  verb
WAIT    33  verb
Z       33  verb
LIGHT   34  verb
STRIK   34  verb
HELP    35  verb
HINT    36  verb
HINTS   36  verb
TIME    37  verb
LISTE   38  verb
SHOUT   39  verb
CALL    39  verb
FILL    40  verb
REFIL   40  verb
TALK    41  verb
ASK     41  verb
SPEAK   41  verb
TELL    41  verb
WAKE    41  verb
ANSWE   41  verb
SLEEP   42  verb
SMELL   43  verb
JUMP    44  verb
BLOW    45  verb
EXTIN   45  verb
YES     46  verb
NO      46  verb
HELLO   46  verb
; Verbs that need light
EXAMI   60  verb
X       60  verb
READ    60  verb
SEARC   60  verb
INSPE   60  verb
STUDY   60  verb
CHECK   60  verb
OPEN    63  verb
UNLOC   63  verb
CLOSE   64  verb
SHUT    64  verb
LOCK    64  verb
PUSH    67  verb
SHOVE   67  verb
PRESS   67  verb
PULL    68  verb
DRAG    68  verb
MOVE    69  verb
LIFT    69  verb
RAISE   69  verb
SHIFT   69  verb
THROW   69  verb
CLIMB   70  verb
POUR    71  verb
EMPTY   71  verb
PRISE   72  verb
PRIZE   72  verb
PRY     72  verb
FORCE   72  verb
FREE    72  verb
LOOSE   72  verb
GIVE    73  verb
OFFER   73  verb
COVER   74  verb
WRAP    74  verb
WARM    74  verb
BREAK   75  verb
HIT     75  verb
KICK    75  verb
SMASH   75  verb
STAMP   75  verb
CLEAN   76  verb
WIPE    76  verb
DUST    76  verb
TURN    77  verb
RING    78  verb
TAP     78  verb
BURN    79  verb
BOIL    80  verb
HEAT    80  verb
STOP    81  verb
WAVE    81  verb
DRINK   82  verb
EAT     82  verb
THAW    83  verb
MELT    83  verb
USE     84  verb
DIG     85  verb
RIDE    86  verb
WRITE   87  verb
; Nouns
ALL     49  noun
EVERY   49  noun
LAMP    50  noun
LAMPS   50  noun
LANTE   50  noun
LIGHT   50  noun
TELEG   51  noun
NOTE    51  noun
KEY     52  noun
MATCH   53  noun
CAN     54  noun
PAPER   55  noun
NEWSP   55  noun
KETTL   56  noun
BAR     57  noun
CROWB   57  noun
SPANN   58  noun
DETON   59  noun
TIN     59  noun
TROLL   60  noun
AMOS    61  noun
PELL    61  noun
MAN     61  noun
HIM     61  noun
BICYC   62  noun
BIKE    62  noun
COAT    63  noun
GREAT   63  noun
OVERC   63  noun
WEDGE   64  noun
SCOTC   64  noun
CHOCK   64  noun
BUCKE   65  noun
SAND    65  noun
LEVER   66  noun
STOVE   67  noun
FIRE    67  noun
COAL    68  noun
SCUTT   68  noun
REGIS   69  noun
BOOK    69  noun
CLOCK   70  noun
WATCH   70  noun
CUPBO   71  noun
DOOR    72  noun
STEPS   73  noun
STAIR   73  noun
BUTT    74  noun
ICE     75  noun
RIME    75  noun
FROST   75  noun
WATER   76  noun
DRUM    77  noun
CRADL   77  noun
TAP     77  noun
GLASS   78  noun
SHELF   78  noun
PARAF   79  noun
OIL     79  noun
POINT   80  noun
BLADE   80  noun
ROD     80  noun
RODS    80  noun
SIGNA   81  noun
POST    81  noun
ARM     81  noun
CASE    81  noun
WICK    81  noun
LADDE   82  noun
RAIL    83  noun
RAILS   83  noun
LINE    83  noun
TRACK   83  noun
GATE    84  noun
GATES   84  noun
WICKE   84  noun
FOG     85  noun
WIRE    86  noun
WIRES   86  noun
POLE    87  noun
SLIP    88  noun
CLAY    88  noun
EARTH   88  noun
STONE   88  noun
HAWTH   89  noun
TREE    89  noun
HAWS    89  noun
WINDO   90  noun
INSTR   91  noun
BELL    91  noun
BLOCK   91  noun
NEEDL   91  noun
DESK    92  noun
PEN     92  noun
BENCH   93  noun
TABLE   93  noun
BRAZI   93  noun
MUG     93  noun
CABIN   94  noun
BOX     95  noun
LOCKI   96  noun
FRAME   96  noun
TRAY    96  noun
BARS    96  noun
HUT     97  noun
TRAIN   98  noun
MAIL    98  noun
LOOP    99  noun
DRAG    99  noun
FENCE   100 noun
LEG     101 noun
ANKLE   101 noun
FOOT    101 noun
BOOT    101 noun
; CROSS, CUTTI and CHAIR are there to be known, so that EXAMINE answers: lint off word-unused
CROSS   102 noun
ROAD    102 noun
LANE    102 noun
VILLA   102 noun
DUSTE   103 noun
CUTTI   104 noun
ME      105 noun
MYSEL   105 noun
CHAIR   106 noun
SCRIP   107 noun
; Adjectives
RED     50  adjective
HOME    50  adjective
2       50  adjective
TWO     50  adjective
BLACK   51  adjective
5       51  adjective
FIVE    51  adjective
WHITE   52  adjective
IRON    53  adjective
BIG     53  adjective
BRASS   54  adjective
SMALL   54  adjective
HAND    55  adjective
; Prepositions
AT      201 preposition
FROM    202 preposition
OFF     203 preposition
ON      204 preposition
ONTO    204 preposition
TO      205 preposition
UNDER   206 preposition
BENEA   206 preposition
WITH    207 preposition
INTO    208 preposition
ROUND   209 preposition
OVER    209 preposition
BEHIN   210 preposition
; Adverbs
CAREF   201 adverb
QUICK   202 adverb
QUIET   203 adverb
SLOWL   204 adverb
; Conjunctions and pronouns
AND     201 conjugation
THEN    201 conjugation
IT      201 pronoun
THEM    201 pronoun
/STX
/2
/3
/4
/5
/6
None of that means anything here. (HELP tells you what does.)

/7
That would do no good.

/8
You have no use for that, or cannot reach it.

/15
Done.

/22
 out of 100
/24
You are wearing _.

/25
You have _ already.

/26
You can see no such thing here.

/28
You have no such thing.

/36
Taken: _.

/37
You put on _.

/39
Put down: _.

/MTX
/0
You would have to see it first, and it is as dark as a sack.
/1
It is ten past three. The mail is due at twenty to five.
/2
There is nothing loose here.
/3
You have nothing to put down.
/4
There is no way through there.
/5
It is no use naming things. Say what you mean to do.
/6
The village is asleep, and the one person in it who is not has already sent you here.
/7
Thornley is forty miles up the line. Whatever can be done must be done here.
/8
South of here you cannot tell rail from ballast from ditch. Not without a light.
/9
You put one foot in front of you and it finds nothing. Not without a light.
/10
You do not walk away from the only light there is.
/11
The slip goes from one side of the cutting to the other. You could climb it, and be on the wrong side of it.
/12
You go up the thirteen steps and try the door. It is locked, and there is nobody to call to. You come down again.
/13
The key is so cold that it sticks to your glove. The lock turns as it has turned every night for forty years.
/14
It is a good lock, and you have no key to it.
/15
It is not locked any more.
/16
You get your fingers under the rim and heave. The bucket comes up with a crack, and in the ring that it leaves on the bricks lies a big iron key.
/17
FIRE, it says, and it is full of sand. The frost has welded it to the bricks. Amos is known to keep things under it.
/18
HANDED IN THORNLEY JCN 2.41 AM. "MARL BOX SILENT SINCE 2.15 STOP LINE CLEAR WAS GIVEN AND MAIL LEFT US 2.35 STOP CANNOT BE RECALLED STOP DUE MARL 4.40 STOP AMOS PELL KEEPS BOX KEY UNDER SAND BUCKET STOP PLEASE DO WHAT IS NEEDFUL STOP NORRIS"
/19
Your own. The lamp was stolen in October and you have been meaning to see about it.
/20
Five wires, each as thick as a rope with rime.
/21
It has no edges. It is brighter than it ought to be, as if the moon were lost in it somewhere.
/22
They are shut across the road and barred. Nothing will come that way tonight.
/23
A rail to the left and a rail to the right, and frost on both that nothing has brushed off.
/24
The frost on the rails is trembling.
/25
Brick to the height of a man, then boards, then glass all round. The board on the end of it says MARL CUTTING.
/26
Thirteen, sanded. There is one line of boot marks in the rime, coming down.
/27
It takes the rain from the roof of the box. There is ice on it as thick as a plate.
/28
You put your heel through it. There is black water under, and the hole skins over while you look.
/29
Corrugated iron. You would know it anywhere by the smell.
/30
Forty gallons of the company's paraffin, a brass tap, and a drip tray with a drowned moth in it.
/31
Seven lamp glasses, washed and stood upside down to dry on a newspaper. Amos is a careful man.
/32
A round iron stove. It has been out long enough to be as cold as everything else. A scuttle of coal stands by it.
/33
It is drawing well. There is a red line all round the door.
/34
Good steam coal, off the tender of some engine that has not missed it.
/35
You lay some coal in the stove, the small pieces at the bottom. Now it wants paper, and a match.
/36
The night's page, in Amos's upright hand. "1.58 Line Clear given to Thornley for the Mail, early, the wires being bad. 2.01 Home pulled off for same. 2.11 A noise in the cutting. Gone to see. A.P." There is nothing after that.
/37
Not until there is something to put in it.
/38
The register stays in the box. It is very nearly the law.
/39
It has a white face and a very slow tick, and is put right from London every morning at ten.
/40
, railway time.
/41
0
/42
.
/43
A deal cupboard under the window with a small brass lock. The lid of it has been scrubbed.
/44
Flags, spare wicks, a Bible, and a clean square in the dust where a tin has been.
/45
The small brass key turns. Behind the flags, dry and red and very carefully stacked, is a tin of fog signals.
/46
It is locked, with a small brass lock. Amos will have the key on him.
/47
You could break it in, and Amos would never forgive you, and he would be right. There is a key.
/48
Fog on every side. It is like being inside a lamp that has gone out.
/49
The needle of the block instrument hangs straight down. You tap the bell key, out of habit. The wire is dead.
/50
The train register lies open on it, with a steel pen in the fold.
/51
Five levers in a row. The red one works the home signal, the black one the points of the loop. The other three are painted white and work nothing any more.
/52
Number 2, the home signal. It is pulled over, as Amos left it, and that means that the signal tells the mail to come on.
/53
Number 2, the home signal. It is back in the frame, and the signal is at danger.
/54
Number 5, the points of the loop. It stands in the frame, and the points lie for the main line and the cutting.
/55
Number 5, the points of the loop. It is pulled over. Whatever passes the signal now will run into the sand.
/56
They used to work the siding to the brickyard. There has been no brickyard since the war.
/57
There is a red one, a black one, and three white ones. Say which.
/58
It comes over as lightly as a walking stick. There is nothing on the other end of it.
/59
It is over already. That is the trouble with it.
/60
You squeeze the catch and put your weight against the lever. It goes back an inch and stops, dead, as if it had met a wall. Something is fast in the locking, down under the floor.
/61
This time it goes. It runs back into the frame with a crash that shakes every window in the box, and the wire sings away down its pulleys to the north. Out in the fog an arm that you cannot see has gone to danger.
/62
It is where it has to be. Leave it.
/63
The catch will not lift. While the red lever is over, the black one is locked. It is the whole purpose of the frame that a signal cannot promise what the points do not mean.
/64
It comes a foot, and then the whole county is on the other end of it. The lever is free. It is the points that are fast.
/65
You take it in both hands and lean back. It comes, and comes, and drops into its notch. The points are set for the loop.
/66
It is in the frame already.
/67
You do not touch a lever without one. It saves the polish.
/68
Flat steel bars in a tray, each with notches cut in it, each able to slide only when the others allow.
/69
Flat steel bars in a tray, each with notches cut in it, each able to slide only when the others allow. A spanner has fallen in among them and been drawn tight, by the bar of the red lever, into a gap where no spanner should be.
/70
Five eighths, with A.P. punched on the shank. It must have gone down through the slot in the floor when its owner was in a hurry. It might be welded in.
/71
The whole pull of the signal wire is holding it. Your fingers do nothing. It wants something longer than a hand.
/72
You find a place for the end of the bar and hang on the other end. For a moment nothing. Then the spanner leaves the tray like a shot rabbit and hits the far wall, and the bars settle with a small oiled click.
/73
There is nothing here to force, or nothing to force it with.
/74
Two blades of steel, each tapered like a scythe, and the rods that should slide them across. Every gap in them is packed with ice, blue and hard as glass.
/75
The blades lie in their chairs, black and wet and steaming a little. They are free.
/76
The blades have gone over. They lie for the loop.
/77
You go at it with your heel, and raise a very little white powder. It wants heat, and plenty of it.
/78
The bar skates and rings. You would sooner break the blade than the ice. It wants heat, and plenty of it.
/79
Lamp oil, loose, by a burning lamp, on a railway line. No. It wants heat that will run into the cracks.
/80
You start at the toe of the blades and work back, and the water goes down into every crack with a hiss and comes out again black. When the kettle is empty you put your boot to the rod. It moves.
/81
It is as cold as the ice. You would be making more of it.
/82
You would only have to fill it again.
/83
They are free already.
/84
It curves off to the west and ends, they say, in sixty yards of sand, so that anything that cannot stop will stop there.
/85
An iron lattice, with a ladder up the back of it. The arm is up there in the fog, and ought to have a light. It has not.
/86
The arm hangs down, and the green glass is in front of the lamp.
/87
The arm stands straight out, and the red glass is in front of the lamp.
/88
The lamp case is a black tin box with a bull's eye. The wick is burnt down to the brass and there is no oil in it at all.
/89
The lamp case is full, and the wick is wet. It is not lit.
/90
The lamp burns with a flat steady flame.
/91
It wants paraffin, and a good deal of it, and you have none up here.
/92
You hook an arm through the ladder, open the case and pour until the wick is floating. You spill some down your sleeve.
/93
That has to be done at the top of the ladder.
/94
You could light that wick from now till morning. It is dry.
/95
You strike a match inside your coat, and the wind leans over your shoulder and takes it. You strike another, and the wind has that too. What it wants is a flame that the wind cannot get at.
/96
You open the hand lamp an inch, hold a twist of paper in the flame until it catches, and pass it across from one lamp to the other before the wind has understood. The wick takes. You shut the case, and the fog in front of the signal is suddenly full of red.
/97
You open the hand lamp an inch, hold a twist of paper in the flame until it catches, and pass it across from one lamp to the other before the wind has understood. The wick takes. You shut the case, and the fog in front of the signal is suddenly full of green. That will have to be seen to.
/98
Iron, and furred with frost. Somebody has wound string round the lower rungs.
/99
You have thought of that, and you are not going to.
/100
You are warmer for it, and nothing else.
/101
Four iron wheels and a deck of planks, for carrying sleepers. One man can push it if the rail is level, and here it is.
/102
Four iron wheels and a deck of planks, for carrying sleepers. One man can push it if the rail is level, and here it is. There is a wooden wedge kicked in under the near wheel.
/103
It rocks, and rolls back. It is wedged.
/104
You want no trolley on the line up there, of all places.
/105
Not without the lamp in your hand. You cannot see what you would be pushing it into.
/106
You shove it off its stand and over the tongue of rail, and it drops onto the main line with four separate bangs. You hang the lamp on the front and lean.
/107
The trolley grumbles ahead of you into the cutting.
/108
You pull the trolley back the way it came.
/109
Its front wheels are in the clay. That is as far south as it goes.
/110
You lean into it with your back, so that you can watch his face. It goes very smoothly. He says the name of each joint in the rail under his breath, or perhaps it is something else.
/111
The banks go down on either side, and there is more air.
/112
"That's the crossing," says Amos Pell to the fog, a moment before it is.
/113
"Wrong road," says Amos Pell.
/114
This is the nearest the trolley will come to the box. The rest is on foot.
/115
It weighs four hundredweight. It can be pushed.
/116
Somebody has to push.
/117
You kick it out sideways with your heel, and pick it up.
/118
Oak, with a bite out of it where a wheel has been.
/119
Old sleepers set on end, tarred, with a tin chimney. No smoke.
/120
A bench, a table with a mug on it, a brazier with holes punched in a pattern by somebody with time to spare. All cold.
/121
A guard's greatcoat, from before the companies were joined up. There is a great deal of it.
/122
Eight of them, down, in loops, among sleepers. That is why the bell is dead.
/123
It went down with the bank, and took every wire on it.
/124
Forty yards of hillside. It is still ticking and settling, somewhere inside.
/125
A whole hawthorn, roots and all, upright, as if it had been asked to move and had come. It still has its haws.
/126
It would take a gang of men till Thursday.
/127
He is sitting with his back against the clay and one boot pointing where a boot should not. His eyes are shut. There is frost on his moustache, and it moves.
/128
He is grey in the face and he is not shivering. That is not as good as it sounds.
/129
The coat comes up to his ears. He has begun to shiver, hard, and is annoyed about it.
/130
He lies flat on the planks, holding both sides, like a man in a boat.
/131
He has the chair by the stove, and his foot up on the scuttle. There is colour in him.
/132
You are no doctor, but you can count, and there is a corner in it that the other one has not got.
/133
"You'll be from the village," says Amos Pell, without opening his eyes. "What time is it?" You tell him. "Then there's the mail. I'd pulled off for her when I heard all this come down. Dropped my spanner and ran. Next thing some more of it came down on me." He gets a small brass key out of his waistcoat, with care, and puts it in your glove. "Fog signals, in the cupboard. Three of them on the rail, out at the home. Put the red one back and see its lamp's in, he'll never see an arm in this. And set her for the loop. If he can't hold her on the frost, better the sand than here."
/134
"Don't shift me yet," he says. "I've gone past shivering. Get something round me first."
/135
"You'll not carry me," he says. "There's the gang's trolley, by the cabin."
/136
"Never mind talking," says Amos Pell. "Push."
/137
"Can you get me up those steps?" he says. "There's a chair by the stove."
/138
"That red lever's still over," says Amos Pell. "I can see it from here. I can see nothing else."
/139
"Is the lamp in, on the home?" says Amos Pell. "He'll go by a dark arm like a man passing a beggar."
/140
"The fog signals," says Amos Pell. "Three, on the rail, out at the home. He'll hear what he can't see."
/141
"You've not set the loop," says Amos Pell. "The black one. If it's fast, it'll be ice in the points, and I've always used the kettle."
/142
"That's everything," says Amos Pell.
/143
There is nobody within a mile who can hear you, unless it is Amos.
/144
You shout his name. The fog keeps it. Then, from the south, not loud, somebody coughs.
/145
There is no need to shout.
/146
You are not sure that he is alive. You might speak to him.
/147
You get your hands under his arms, and the sound he makes stops you. He is as cold as the rails. "Something round me first," he says.
/148
You get him a yard and have to put him down again. He is a big man. "Trolley," he says. "By the cabin. Use your head."
/149
Between you, in three goes and with language, you get him up onto the planks. He lies there and looks at the fog.
/150
He is well enough as he is until you reach the crossing.
/151
"Is there a fire up there?" says Amos Pell. There is not. "Then see to it. I can freeze just as well out here and save the stairs."
/152
You run the trolley back clear of the line, wedge it, and come for him. His arm goes round your neck. Thirteen steps, and he counts them. Then he is in the chair by the stove with his foot on the scuttle, and neither of you says anything for a while.
/153
He is best where he is.
/154
You get it round him, and then round him again, and turn up the collar. After a minute his teeth begin to knock together. "That's better," he says, with difficulty.
/155
There is nobody here to give it to.
/156
"Not now," says Amos Pell.
/157
A square hand lamp with a bull's eye and a good thick glass. No wind will trouble that flame.
/158
A square hand lamp with a bull's eye and a good thick glass. You shake it. Empty.
/159
A square hand lamp with a bull's eye and a good thick glass. It is full, and not lit.
/160
You fill it to the neck and screw down the burner.
/161
It is full.
/162
You have nothing to fill it with.
/163
You have nothing to light it with.
/164
The wick glows, thinks about it, and goes out. The lamp is dry.
/165
You strike a match, turn up the wick and drop the glass. The light makes a room in the dark, with you in the middle of it.
/166
You have had enough of the dark. Leave it lit.
/167
You strike one and watch it go down to your fingers. You have plenty, but not so many as that.
/168
Safety matches, three parts full.
/169
A flat can with a long spout, made to go up ladders. Empty.
/170
A flat can with a long spout, made to go up ladders. It is full.
/171
You hold it under the tap until it is full.
/172
The drum is in the lamp hut.
/173
You open the tap, let a little run into the tray, and shut it again. It wants something to run into.
/174
It would be a waste, and a danger.
/175
The Kell Advertiser, for the second of the month. Ewes are down again.
/176
A big black kettle, full of water and quite cold.
/177
A big black kettle, boiling hot. The handle has a rag round it, luckily.
/178
A big black kettle, empty.
/179
There is plenty of water in it.
/180
You put your heel through the ice on the butt and hold the kettle under until it stops bubbling.
/181
There is no water here. The butt is at the foot of the box.
/182
You set it on the stove.
/183
The stove is out.
/184
It is on the stove. You can hear it thinking.
/185
The kettle on the stove has begun to rattle its lid.
/186
The kettle wants a fire under it, and water in it.
/187
It is burning.
/188
You have no match.
/189
Coal will not light from a match. It wants paper under it.
/190
You lay paper, then coal, then open the draught and put a match to it. It smokes, considers you, and begins to burn with a noise like a small flag.
/191
It would be gone in half a minute. There is a stove for that.
/192
Four feet of iron with a chisel end. The gang use it for arguing with rails.
/193
Five eighths, with A.P. punched on the shank.
/194
Three flat red tins, each the size of a watch, with two lead straps to bend round a rail. A wheel sets them off, and they can be heard in the next parish.
/195
Here he would hear them and be past you before his hand was on the brake. They belong out at the home signal.
/196
You walk on past the post, counting, into nothing. Then you kneel and set them on the rail, one, and ten paces, two, and ten paces, three, and bend the lead straps under with your thumbs. You walk back to the signal. It seems further.
/197
As long as your hand. A brass tag says MARL.
/198
A small brass key, warm from somebody's waistcoat.
/199
You wait five minutes. They are long ones.
/200
Nothing. You had not known how much of the night is usually made of sound.
/201
The rails are humming.
/202
Frost, and coal smoke a long time cold.
/203
Two men asleep at Marl would be one too many.
/204
Nobody asked you anything.
/205
A man with a lamp has never yet stopped a train in fog. There are proper ways: a signal that can be seen, and something that can be heard.
/206
You are cold, not thirsty.
/207
You ring six beats, Obstruction Danger. Nothing comes back. Nothing can.
/208
Say what it is that you want to do with it.
/209
You have a railway overcoat, good gloves and a watch. You have had two hours' sleep.
/210
It is not here, or it is not worth a second look.
/211
Fog.
/212
Say what, or say it another way.
/213
It does not open, or had better be left as it is.
/214
There has been enough broken tonight.
/215
You could, and it would help nobody.
/216
Somewhere to the north, in the fog, coming.
/217
You are the relief signalman, and the line has to be made safe before the mail comes. Say what you do in a few plain words: EXAMINE THE STOVE, TAKE MATCHES AND GO DOWN, PUT COAT ON, PUSH THE RED LEVER. You can go NORTH, SOUTH, EAST, WEST, UP, DOWN, IN and OUT, and LOOK, WAIT, TALK, ask the TIME and your SCORE, list what you carry with I, and SAVE, LOAD or QUIT. HINT gives a hint.
/218
The telegram says where the key of the box is. When you have it, go up the steps.
/219
You need a light. There is a hand lamp in the box, and matches, and there is paraffin in the lamp hut north of it.
/220
The register says where Amos went. Go south with the lamp until you find him, and speak to him.
/221
The red lever has to go back into the frame. What holds it is in the locking room under the box, and the platelayers have a bar.
/222
Amos is too cold to be moved. There is a greatcoat in the platelayers' cabin.
/223
The signal lamp wants paraffin, from the can, and then a flame that the wind cannot reach.
/224
Open the cupboard in the box with the brass key, and lay the fog signals at the home signal.
/225
Light the stove in the box, with paper and a match. It will warm a man, and a kettle.
/226
The kettle wants to be boiled on the stove and poured over the points. Then pull the black lever.
/227
The trolley by the platelayers' cabin will carry Amos as far as the crossing, when its wedge is out. Have the stove lit before you take him up.
/228
Far away to the north an engine whistles, long, for Stannick tunnel. That is the mail.
/229
The rails have begun to tick, and then to hum. She is inside two miles.
/230
At twenty to five the fog to the north says three flat words, one after another, and after them comes the long iron groan of a train being stopped by somebody who means it. It stops. After a minute there is a lamp, walking, with a fireman behind it.
/231
You tell him what is in the cutting, and who is sitting by the stove. It is the fireman who writes it in the register, since your hands have begun to shake.
/232
You tell him what is in the cutting. They take a lamp and go to look, six of them, and come back slowly, carrying Amos Pell on a door. He lost the foot, and would never say what he had thought about while he waited.
/233
You tell him what is in the cutting, and who is down there in a borrowed coat. They go for him, six of them, and bring him in. It was the coat that did it, the doctor says.
/234
At twenty to five the driver of the mail sees a red lamp at forty yards, and does everything that a driver can. It goes through the crossing with every wheel locked, shedding sparks, hardly slower than a man can run, and stops in the cutting with ten yards of rail in hand. Nobody says anything for a time. Then everybody does.
/235
At twenty to five the mail comes out of the fog at forty miles an hour. The points take her. She goes into the loop with every wheel screaming, and into the sand, and stops there, leaning a little, with steam coming out of her in places where it should not. Nobody is killed. There is an inquiry, and your name is in it, not always unkindly.
/236
They find Amos Pell when it gets light.
/237
At twenty to five the mail goes by. It is only lit windows, and the shapes of men sorting letters under them, and a red lamp that gets smaller. It goes into the cutting. Then for a little while there is no sound at all, and then there is.
/238
Then there is nothing left to do but stand at the window.
/239
Then there is nothing left to do, and you go back up to the box to do it.
/240
At twenty to five the fog to the north says three flat words, one after another, and after them comes the long iron groan of a train being stopped by somebody who means it. It stops. Presently it whistles, quite politely, to ask what is the matter.
"Four forty-one," says Amos Pell. "She's a minute down. Put it in the book."
You dip the pen, and put it in the book.
/241
The stove is out. It is colder in here than it was on the road.
/242
The stove is alight, and the windows have begun to weep.
/243
One lever of the five is pulled over. It is the red one.
/244
Every window of the box is dark. You have never seen it dark before.
/245
There is firelight in the windows of the box.
/246
A spanner is jammed in the tray.
/247
Three fog signals are strapped to the rail, beyond where you can see.
/248
High up in the fog there is a red stain, about the size of a plate.
/249
High up in the fog there is a green stain, about the size of a plate.
/250
The blades lie for the loop.
/251
The lamp is out.
/252
The lamp is lit.
/OTX
/0
a lighted hand lamp
/1
a hand lamp
/2
a telegram
/3
a big iron key
/4
a box of matches
/5
a paraffin can
/6
a newspaper
/7
a kettle
/8
an iron bar
/9
a spanner
/10
a tin of fog signals
/11
a small brass key
/12
the gang's trolley
/13
Amos Pell
/14
a greatcoat
/15
a wooden wedge
/16
the gang's trolley with Amos Pell on it
/17
Amos Pell in the chair by the stove
/LTX
/0
THE SIGNAL BOX

At ten to three somebody throws gravel at your window. It is Mrs. Strand from the post office, in a coat over her nightdress, with a telegram from Thornley Junction. You are the relief signalman. You have done the mile and a half to Marl in fog, on a bicycle without a lamp, and fallen off it twice.
/1
Lane End
The lane gives out here against the railway fence. Fog stands in it as thick as fleece, and every wire of the fence has grown a white beard. Your bicycle leans where you let it fall. A wicket gate leads east to the crossing.
/2
The Level Crossing
White gates, shut against the road, and between them two rails that come out of the fog in the north and go into the fog in the south. East of them the signal box stands over you on its brick footing, and the steps of it are on the far side. The lane is west.
/3
Foot of the Box
Thirteen steps go up the end of the box to its door. Under them a low doorway leads in to the locking room, where the works of the frame are. A red sand bucket stands beside the bottom step, and a water butt beside that. The lamp hut is a few yards north, the crossing west.
/4
The Signal Box
A room made of windows, and in every window fog. Along one side stands the frame, five levers, each with its brass plate and its duster, and over it hang the instruments and the clock, which ticks as if nothing were the matter. There is a stove with a chair by it, a desk with the train register lying open, and a cupboard under the window. The steps go down.
/5
The Locking Room
You cannot stand upright in here. Over your head the tails of the levers come down through the floor in a row, and from them rods and wires run out through the wall. In front of them, at the height of your chest, lies the locking: a long tray of steel bars, greased, each one forbidding another. The way out is behind you.
/6
The Lamp Hut
Corrugated iron, and the smell of paraffin. A drum lies in its cradle with a brass tap at the bottom. On the shelf over it seven lamp glasses stand upside down. There is no door, only a gap to the south.
/7
The Points
Here the loop leaves the main line. Two long blades of steel lie between the rails, and whichever way they lie the train goes. To the west the loop curves off into the fog. The line itself goes north to the home signal and south to the crossing.
/8
The Home Signal
A lattice post goes straight up into the fog with an iron ladder on its back. A wire comes in along the ground from the south, turns over a pulley, and goes up with it. The rails to the north are white and perfectly silent.
/9
The Top of the Ladder
There is a hoop of iron to lean your back against, and nothing else to recommend it. A thin wind moves the fog past you without making it any thinner. The arm of the signal is at your shoulder, and behind its red and green glasses is the lamp, in a case the size of a loaf.
/10
By the Platelayers' Cabin
The cabin is built of old sleepers, tarred, and its door is only a sack. You can go in. Beside it the gang have laid a few yards of rail to stand their trolley on, with a tongue that joins it to the line. The crossing is north. To the south the ground on both sides begins to rise.
/11
The Cabin
A bench, a table, a brazier. On the wall a calendar from a seed merchant, kept for its picture. It smells of tar and bacon and wet wool, and it is almost possible to believe that it is warm. The way out is the sack.
/12
The Mouth of the Cutting
The banks come up on either hand, wet marl, higher than the lamp can reach. Across the ballast lie telegraph wires, in loops, like something unravelled. The cutting goes on south. The way back is north.
/13
The Slip
The west bank has come down. It lies across both rails, higher than your head, clay and stone and one whole hawthorn tree still standing upright in it. A telegraph pole sticks out at a slant. The only way is north.
/CON
/0                             ; intro
/1                             ; lane
EAST 2                         ; cross
IN 2                           ; cross
/2                             ; cross
WEST 1                         ; lane
EAST 3                         ; foot
NORTH 7                        ; points
SOUTH 10                       ; bycabin
/3                             ; foot
UP 4                           ; box
IN 5                           ; locking
NORTH 6                        ; hut
WEST 2                         ; cross
OUT 2                          ; cross
/4                             ; box
DOWN 3                         ; foot
OUT 3                          ; foot
/5                             ; locking
OUT 3                          ; foot
/6                             ; hut
SOUTH 3                        ; foot
OUT 3                          ; foot
/7                             ; points
NORTH 8                        ; home
SOUTH 2                        ; cross
/8                             ; home
SOUTH 7                        ; points
UP 9                           ; top
/9                             ; top
DOWN 8                         ; home
/10                            ; bycabin
NORTH 2                        ; cross
SOUTH 12                       ; mouth
IN 11                          ; cabin
EAST 11                        ; cabin
/11                            ; cabin
OUT 10                         ; bycabin
WEST 10                        ; bycabin
/12                            ; mouth
NORTH 10                       ; bycabin
SOUTH 13                       ; slip
/13                            ; slip
NORTH 12                       ; mouth
/OBJ
; number, place, weight, container, wearable, noun, adjective
/0 252 3 N N LAMP _            ; lamp
/1 4 3 N N LAMP _              ; lamp out, box
/2 254 1 N N TELEG _           ; telegram
/3 252 1 N N KEY IRON          ; boxkey
/4 4 1 N N MATCH _             ; matches, box
/5 6 4 N N CAN _               ; can, hut
/6 6 1 N N PAPER _             ; paper, hut
/7 4 6 N N KETTL _             ; kettle, box
/8 11 12 N N BAR _             ; bar, cabin
/9 252 4 N N SPANN _           ; spanner
/10 252 2 N N DETON _          ; fog
/11 252 1 N N KEY BRASS        ; cupkey
/12 10 63 N N TROLL _          ; trolley, bycabin
/13 13 63 N N AMOS _           ; amos, slip
/14 11 10 N Y COAT _           ; coat, cabin
/15 10 2 N N WEDGE _           ; wedge, bycabin
/16 252 63 N N TROLL _         ; trolley amos
/17 252 63 N N AMOS _          ; amos box
/PRO 0
; - - - Words put right before anything else
* *
 EQ 33 255
 NOTEQ 34 255
 NOTZERO 83                    ; f verb
 COPYFF 83 33                  ; f verb
* *
 CLEAR 83                      ; f verb
* *
 GT 33 19
 LT 33 24
 COPYFF 33 83                  ; f verb
* *
 NOTEQ 45 255
 EQ 35 255
 COPYFF 45 35
* *
 EQ 33 25                      ; v look
 NOTEQ 34 255
 LET 33 60                     ; v examine
* *
 EQ 34 85                      ; n fog
 EQ 44 81                      ; n signal
 LET 34 59                     ; n fog signals
 LET 44 255
* *
 EQ 34 85                      ; n fog
 GT 33 19
 LT 33 25
 LET 34 59                     ; n fog signals
* *
 EQ 34 79                      ; n paraffin
 EQ 44 54                      ; n can
 LET 34 54                     ; n can
 LET 44 255
* *
 EQ 34 76                      ; n water
 EQ 44 74                      ; n butt
 LET 34 74                     ; n butt
 LET 44 255
* *
 EQ 34 51                      ; n telegram
 EQ 44 87                      ; n pole
 LET 34 87                     ; n pole
 LET 44 255
* *
 EQ 34 51                      ; n telegram
 EQ 44 86                      ; n wires
 LET 34 86                     ; n wires
 LET 44 255
* *
 EQ 34 98                      ; n train
 EQ 44 69                      ; n register
 LET 34 69                     ; n register
 LET 44 255
* *
 EQ 34 95                      ; n box
 EQ 44 52                      ; n key
 LET 34 52                     ; n key
 LET 44 255
* *
 EQ 34 99                      ; n loop
 EQ 44 80                      ; n points
 LET 34 80                     ; n points
 LET 44 255
; Climbing is going up, and on the ladder going down
* *
 EQ 33 70                      ; v climb
 AT 9                          ; top
 LET 33 11                     ; v down
* *
 EQ 33 70                      ; v climb
 EQ 34 255
 LET 33 10                     ; v up
* *
 EQ 33 70                      ; v climb
 EQ 34 73                      ; n steps
 LET 33 10                     ; v up
* *
 EQ 33 70                      ; v climb
 EQ 34 82                      ; n ladder
 LET 33 10                     ; v up
* *
 EQ 33 70                      ; v climb
 EQ 34 81                      ; n signal
 LET 33 10                     ; v up
; Going into the box, the hut
* *
 EQ 33 12                      ; v in
 EQ 34 95                      ; n box
 AT 3                          ; foot
 LET 33 10                     ; v up
* *
 EQ 33 12                      ; v in
 EQ 34 95                      ; n box
 AT 2                          ; cross
 LET 33 4                      ; v east
* *
 EQ 33 12                      ; v in
 EQ 34 97                      ; n hut
 AT 3                          ; foot
 LET 33 2                      ; v north
; In the box the points, the loop and the signal are their levers
* *
 AT 4                          ; box
 EQ 34 81                      ; n signal
 GT 33 66
 LT 33 70
 LET 34 66                     ; n lever
 LET 35 50                     ; a red
* *
 AT 4                          ; box
 EQ 34 80                      ; n points
 GT 33 66
 LT 33 70
 LET 34 66                     ; n lever
 LET 35 51                     ; a black
* *
 AT 4                          ; box
 EQ 34 99                      ; n loop
 GT 33 66
 LT 33 70
 LET 34 66                     ; n lever
 LET 35 51                     ; a black
* *
 AT 4                          ; box
 EQ 33 24                      ; v put
 EQ 34 80                      ; n points
 LET 33 68                     ; v pull
 LET 34 66                     ; n lever
 LET 35 51                     ; a black
* *
 AT 4                          ; box
 EQ 33 24                      ; v put
 EQ 34 81                      ; n signal
 LET 33 67                     ; v push
 LET 34 66                     ; n lever
 LET 35 50                     ; a red
* *
 AT 4                          ; box
 EQ 33 24                      ; v put
 EQ 34 66                      ; n lever
 EQ 35 50                      ; a red
 LET 33 67                     ; v push
* *
 AT 4                          ; box
 EQ 34 66                      ; n lever
 EQ 33 69                      ; v move
 EQ 35 50                      ; a red
 LET 33 67                     ; v push
* *
 AT 4                          ; box
 EQ 34 66                      ; n lever
 EQ 33 69                      ; v move
 LET 33 68                     ; v pull
; On the ladder the lamp is the signal's
* *
 AT 9                          ; top
 EQ 34 50                      ; n lamp
 EQ 33 34                      ; v light
 LET 34 81                     ; n signal
* *
 AT 9                          ; top
 EQ 34 50                      ; n lamp
 EQ 33 40                      ; v fill
 LET 34 81                     ; n signal
* *
 AT 9                          ; top
 EQ 33 71                      ; v pour
 LET 33 40                     ; v fill
 LET 34 81                     ; n signal
; Warming the points is pouring the kettle
* *
 AT 7                          ; points
 EQ 33 83                      ; v thaw
 LET 33 71                     ; v pour
 LET 34 56                     ; n kettle
* *
 EQ 33 71                      ; v pour
 EQ 34 76                      ; n water
 LET 34 56                     ; n kettle
; Things with more than one word for handling them
* *
 EQ 34 61                      ; n amos
 GT 33 66
 LT 33 70
 LET 33 20                     ; v get
* *
 EQ 34 61                      ; n amos
 EQ 33 35                      ; v help
 LET 33 20                     ; v get
* *
 EQ 34 61                      ; n amos
 EQ 33 29                      ; v save
 LET 33 20                     ; v get
* *
 EQ 34 61                      ; n amos
 EQ 33 24                      ; v put
 LET 33 20                     ; v get
* *
 EQ 33 74                      ; v cover
 EQ 34 61                      ; n amos
 LET 33 73                     ; v give
 LET 34 63                     ; n coat
* *
 EQ 33 74                      ; v cover
 EQ 34 63                      ; n coat
 LET 33 73                     ; v give
* *
 EQ 33 24                      ; v put
 EQ 34 63                      ; n coat
 EQ 44 61                      ; n amos
 LET 33 73                     ; v give
* *
 EQ 34 60                      ; n trolley
 GT 33 67
 LT 33 70
 LET 33 67                     ; v push
* *
 EQ 34 64                      ; n wedge
 GT 33 66
 LT 33 70
 LET 33 20                     ; v get
* *
 EQ 34 64                      ; n wedge
 EQ 33 23                      ; v remove
 LET 33 20                     ; v get
* *
 EQ 34 64                      ; n wedge
 EQ 33 75                      ; v break
 LET 33 20                     ; v get
* *
 EQ 34 64                      ; n wedge
 EQ 33 72                      ; v prise
 LET 33 20                     ; v get
* *
 EQ 34 58                      ; n spanner
 ZERO 70                       ; f spanner
 GT 33 66
 LT 33 70
 LET 33 20                     ; v get
* *
 EQ 34 58                      ; n spanner
 EQ 33 75                      ; v break
 LET 33 72                     ; v prise
* *
 EQ 33 21                      ; v drop
 EQ 34 59                      ; n fog signals
 AT 8                          ; home
 LET 33 24                     ; v put
* *
 AT 4                          ; box
 EQ 33 79                      ; v burn
 EQ 34 55                      ; n paper
 LET 33 34                     ; v light
 LET 34 67                     ; n stove
* *
 AT 4                          ; box
 EQ 33 79                      ; v burn
 EQ 34 51                      ; n telegram
 LET 33 34                     ; v light
 LET 34 67                     ; n stove
* *
 AT 4                          ; box
 EQ 33 34                      ; v light
 EQ 34 68                      ; n coal
 LET 34 67                     ; n stove
* *
 AT 6                          ; hut
 EQ 33 77                      ; v turn
 EQ 34 77                      ; n drum
 PRESENT 5                     ; can
 LET 33 40                     ; v fill
 LET 34 54                     ; n can
* *
 EQ 33 255
 EQ 34 66                      ; n lever
 EQ 44 58                      ; n spanner
 LET 33 72                     ; v prise
 LET 34 58                     ; n spanner
* *
 AT 5                          ; locking
 EQ 33 72                      ; v prise
 EQ 34 96                      ; n locking
 LET 34 58                     ; n spanner
; - - - In the dark
* *
 NOTZERO 0
 ABSENT 0                      ; lamp
 GT 33 59
 LT 33 255
 MESSAGE 0                     ; too dark
 DONE
; - - - Going about
NORTH _
 ATGT 11                       ; cabin
 PRESENT 0                     ; lamp
 NOTCARR 0                     ; lamp
 MESSAGE 10                    ; lamp leave
 DONE
SOUTH _
 ATGT 11                       ; cabin
 PRESENT 0                     ; lamp
 NOTCARR 0                     ; lamp
 MESSAGE 10                    ; lamp leave
 DONE
NORTH _
 AT 8                          ; home
 MESSAGE 7                     ; line north
 DONE
SOUTH _
 AT 10                         ; bycabin
 ABSENT 0                      ; lamp
 MESSAGE 8                     ; needs lamp south
 DONE
SOUTH _
 AT 12                         ; mouth
 ABSENT 0                      ; lamp
 MESSAGE 9                     ; no lamp cutting
 DONE
SOUTH _
 AT 13                         ; slip
 MESSAGE 11                    ; slip blocks
 DONE
WEST _
 AT 1                          ; lane
 MESSAGE 6                     ; to village
 DONE
UP _
 AT 13                         ; slip
 MESSAGE 11                    ; slip blocks
 DONE
UP _
 AT 3                          ; foot
 ZERO 66                       ; f door
 NOTCARR 3                     ; boxkey
 MESSAGE 12                    ; door locked
 DONE
UP _
 AT 3                          ; foot
 ZERO 66                       ; f door
 CARRIED 3                     ; boxkey
 LET 66 1                      ; f door
 MESSAGE 13                    ; unlocks
 NEWLINE
; - - - Taking
GET ALL
 WHATO
 LET 90 1                      ; f all
 DOALL 255
 CLEAR 90                      ; f all
 LET 34 49
 NOTEQ 51 255
 DONE
GET ALL
 MESSAGE 2                     ; nothing to take
 DONE
GET TROLL
 NOTZERO 90                    ; f all
 DONE
GET TROLL
 PRESENT 12                    ; trolley
 MESSAGE 115                   ; get trolley
 DONE
GET TROLL
 PRESENT 16                    ; trolley amos
 MESSAGE 115                   ; get trolley
 DONE
GET AMOS
 NOTZERO 90                    ; f all
 DONE
GET AMOS
 PRESENT 13                    ; amos
 ZERO 78                       ; f amos
 MESSAGE 146                   ; amos wake first
 DONE
GET AMOS
 PRESENT 13                    ; amos
 EQ 78 1                       ; f amos
 MESSAGE 147                   ; amos no coat
 DONE
GET AMOS
 PRESENT 13                    ; amos
 ABSENT 12                     ; trolley
 MESSAGE 148                   ; amos too heavy
 DONE
GET AMOS
 PRESENT 13                    ; amos
 DESTROY 13                    ; amos
 DESTROY 12                    ; trolley
 CREATE 16                     ; trolley amos
 LET 78 3                      ; f amos
 PLUS 30 5
 MESSAGE 149                   ; amos loaded
 DONE
GET AMOS
 PRESENT 16                    ; trolley amos
 NOTAT 2                       ; cross
 MESSAGE 150                   ; amos stay
 DONE
GET AMOS
 PRESENT 16                    ; trolley amos
 ZERO 67                       ; f stove
 MESSAGE 151                   ; amos no fire
 DONE
GET AMOS
 PRESENT 16                    ; trolley amos
 DESTROY 16                    ; trolley amos
 PLACE 12 10                   ; trolley, bycabin
 PLACE 17 4                    ; amos box, box
 LET 78 4                      ; f amos
 PLUS 30 10
 MESSAGE 152                   ; amos home
 NEWLINE
 GOTO 4                        ; box
 PROCESS 3
 DESC
GET AMOS
 PRESENT 17                    ; amos box
 MESSAGE 153                   ; amos is home
 DONE
GET WEDGE
 AT 10                         ; bycabin
 ZERO 79                       ; f wedge
 LET 79 1                      ; f wedge
 MESSAGE 117                   ; wedge out
 GET 15                        ; wedge
 DONE
GET SPANN
 AT 5                          ; locking
 ZERO 70                       ; f spanner
 ABSENT 0                      ; lamp
 MESSAGE 0                     ; too dark
 DONE
GET SPANN
 AT 5                          ; locking
 ZERO 70                       ; f spanner
 MESSAGE 71                    ; spanner stuck
 DONE
GET BUCKE
 AT 3                          ; foot
 LET 33 69                     ; v move
GET BICYC
 AT 1                          ; lane
 SYSMESS 8
 DONE
GET COAL
 AT 4                          ; box
 SYSMESS 8
 DONE
GET REGIS
 AT 4                          ; box
 MESSAGE 38                    ; get register
 DONE
GET GLASS
 AT 6                          ; hut
 SYSMESS 8
 DONE
GET PARAF
 AT 6                          ; hut
 MESSAGE 173                   ; tap what
 DONE
GET _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
GET _
 PREP OFF
 AUTOR
 DONE
GET _
 AUTOG
 DONE
; - - - Putting down, putting on
DROP ALL
 WHATO
 DOALL 254
 LET 34 49
 NOTEQ 51 255
 DONE
DROP ALL
 MESSAGE 3                     ; nothing to drop
 DONE
DROP KETTL
 CARRIED 7                     ; kettle
 AT 4                          ; box
 LET 33 24                     ; v put
DROP _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
DROP _
 AUTOD
 DONE
WEAR _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
WEAR COAT
 PRESENT 14                    ; coat
 NOTCARR 14                    ; coat
 NOTWORN 14                    ; coat
 GET 14                        ; coat
WEAR _
 AUTOW
 DONE
REMOV _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
REMOV _
 AUTOR
 DONE
PUT KETTL
 AT 4                          ; box
 CARRIED 7                     ; kettle
 PLACE 7 4                     ; kettle, box
 MESSAGE 182                   ; kettle on
PUT KETTL
 AT 4                          ; box
 PRESENT 7                     ; kettle
 ZERO 67                       ; f stove
 MESSAGE 183                   ; kettle needs fire
 DONE
PUT KETTL
 AT 4                          ; box
 PRESENT 7                     ; kettle
 EQ 68 2                       ; f kettle
 MESSAGE 178                   ; x kettle empty
 DONE
PUT KETTL
 AT 4                          ; box
 PRESENT 7                     ; kettle
 MESSAGE 184                   ; kettle standing
 DONE
PUT COAL
 AT 4                          ; box
 ZERO 67                       ; f stove
 MESSAGE 35                    ; coal in
 DONE
PUT COAL
 AT 4                          ; box
 SYSMESS 7
 DONE
PUT PAPER
 AT 4                          ; box
 EQ 44 67                      ; n stove
 PRESENT 6                     ; paper
 ZERO 67                       ; f stove
 MESSAGE 35                    ; coal in
 DONE
PUT TELEG
 AT 4                          ; box
 EQ 44 67                      ; n stove
 PRESENT 2                     ; telegram
 ZERO 67                       ; f stove
 MESSAGE 35                    ; coal in
 DONE
PUT DETON
 NOTCARR 10                    ; fog
 SYSMESS 28
 DONE
PUT DETON
 NOTAT 8                       ; home
 EQ 44 83                      ; n rails
 MESSAGE 195                   ; fog too near
 DONE
PUT DETON
 AT 8                          ; home
 DESTROY 10                    ; fog
 LET 77 1                      ; f fog
 PLUS 30 10
 MESSAGE 196                   ; fog laid
 DONE
PUT _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
PUT COAT
 PREP ON
 EQ 44 255
 PRESENT 14                    ; coat
 NOTCARR 14                    ; coat
 NOTWORN 14                    ; coat
 GET 14                        ; coat
PUT _
 PREP ON
 EQ 44 255
 AUTOW
 DONE
PUT _
 EQ 43 255
 EQ 44 255
 AUTOD
 DONE
PUT _
 SYSMESS 7
 DONE
; - - - About the game
LOOK _
 DESC
INVEN _
 INVEN
 DONE
SCORE _
 SCORE
 TURNS
 DONE
QUIT _
 SET 27
 DONE
SAVE _
 SAVE
 DONE
LOAD _
 EQ 34 107                     ; n script
 DONE
LOAD _
 LOAD
 DONE
RAMSA _
 RAMSAVE
 OK
RAMLO _
 COPYFF 31 254
 COPYFF 32 255
 RAMLOAD 253
 COPYFF 254 31
 COPYFF 255 32
 DESC
WAIT _
 MESSAGE 199                   ; wait
 PROCESS 4
 PROCESS 4
 PROCESS 4
 PROCESS 4
 PROCESS 4
 PROCESS 4
 PROCESS 4
 PROCESS 4
 PROCESS 4
 DONE
HELP _
 MESSAGE 217                   ; help
 DONE
HINT _
 PROCESS 7
 DONE
TIME _
 PRINT 64                      ; f hour
 MES 42                        ; point
TIME _
 LT 63 10                      ; f min
 MES 41                        ; nought
TIME _
 PRINT 63                      ; f min
 MESSAGE 40                    ; oclock
 DONE
; - - - Light, oil and fire
LIGHT LAMP
 PRESENT 0                     ; lamp
 MESSAGE 187                   ; stove is lit
 DONE
LIGHT LAMP
 ABSENT 1                      ; lamp out
 SYSMESS 26
 DONE
LIGHT LAMP
 NOTCARR 4                     ; matches
 MESSAGE 163                   ; lamp no match
 DONE
LIGHT LAMP
 ZERO 76                       ; f oil
 MESSAGE 164                   ; lamp dry
 DONE
LIGHT LAMP
 ZERO 82                       ; f lamp
 LET 82 1                      ; f lamp
 PLUS 30 5
LIGHT LAMP
 SWAP 1 0                      ; lamp out, lamp
 MESSAGE 165                   ; lamp lit
 NOTZERO 0
 NEWLINE
 DESC
LIGHT LAMP
 DONE
LIGHT SIGNA
 NOTAT 9                       ; top
 MESSAGE 93                    ; case from below
 DONE
LIGHT SIGNA
 EQ 74 2                       ; f signal
 MESSAGE 187                   ; stove is lit
 DONE
LIGHT SIGNA
 ZERO 74                       ; f signal
 MESSAGE 94                    ; case dry light
 DONE
LIGHT SIGNA
 ABSENT 0                      ; lamp
 NOTCARR 4                     ; matches
 MESSAGE 163                   ; lamp no match
 DONE
LIGHT SIGNA
 ABSENT 0                      ; lamp
 MESSAGE 95                    ; case wind
 DONE
LIGHT SIGNA
 LET 74 2                      ; f signal
 PLUS 30 15
LIGHT SIGNA
 NOTZERO 71                    ; f red
 MESSAGE 96                    ; case lit
 DONE
LIGHT SIGNA
 MESSAGE 97                    ; case lit green
 DONE
LIGHT STOVE
 NOTAT 4                       ; box
 SYSMESS 26
 DONE
LIGHT STOVE
 NOTZERO 67                    ; f stove
 MESSAGE 187                   ; stove is lit
 DONE
LIGHT STOVE
 ABSENT 4                      ; matches
 MESSAGE 188                   ; stove no match
 DONE
LIGHT STOVE
 ABSENT 6                      ; paper
 ABSENT 2                      ; telegram
 MESSAGE 189                   ; stove no paper
 DONE
LIGHT STOVE
 LET 67 1                      ; f stove
 PLUS 30 10
 MESSAGE 190                   ; stove lit
LIGHT STOVE
 PRESENT 6                     ; paper
 DESTROY 6                     ; paper
 DONE
LIGHT STOVE
 DESTROY 2                     ; telegram
 DONE
LIGHT MATCH
 PRESENT 4                     ; matches
 MESSAGE 167                   ; match waste
 DONE
LIGHT PAPER
 AT 4                          ; box
 LET 33 79                     ; v burn
LIGHT PAPER
 MESSAGE 191                   ; burn elsewhere
 DONE
LIGHT _
 SYSMESS 7
 DONE
BLOW LAMP
 PRESENT 0                     ; lamp
 MESSAGE 166                   ; lamp keep
 DONE
FILL LAMP
 PRESENT 0                     ; lamp
 MESSAGE 161                   ; lamp full
 DONE
FILL LAMP
 ABSENT 1                      ; lamp out
 SYSMESS 26
 DONE
FILL LAMP
 NOTZERO 76                    ; f oil
 MESSAGE 161                   ; lamp full
 DONE
FILL LAMP
 AT 6                          ; hut
 LET 76 1                      ; f oil
 MESSAGE 160                   ; lamp filled
 DONE
FILL LAMP
 CARRIED 5                     ; can
 NOTZERO 75                    ; f can
 LET 76 1                      ; f oil
 MESSAGE 160                   ; lamp filled
 DONE
FILL LAMP
 MESSAGE 162                   ; nothing to fill with
 DONE
FILL CAN
 ABSENT 5                      ; can
 SYSMESS 26
 DONE
FILL CAN
 NOTZERO 75                    ; f can
 MESSAGE 161                   ; lamp full
 DONE
FILL CAN
 NOTAT 6                       ; hut
 MESSAGE 172                   ; can no drum
 DONE
FILL CAN
 LET 75 1                      ; f can
 MESSAGE 171                   ; can filled
 DONE
FILL SIGNA
 NOTAT 9                       ; top
 MESSAGE 93                    ; case from below
 DONE
FILL SIGNA
 NOTZERO 74                    ; f signal
 MESSAGE 161                   ; lamp full
 DONE
FILL SIGNA
 CARRIED 5                     ; can
 NOTZERO 75                    ; f can
 LET 74 1                      ; f signal
 CLEAR 75                      ; f can
 MESSAGE 92                    ; case fill
 DONE
FILL SIGNA
 MESSAGE 91                    ; case need oil
 DONE
FILL KETTL
 ABSENT 7                      ; kettle
 SYSMESS 26
 DONE
FILL KETTL
 LT 68 2                       ; f kettle
 MESSAGE 179                   ; kettle has water
 DONE
FILL KETTL
 NOTAT 3                       ; foot
 MESSAGE 181                   ; kettle no water
 DONE
FILL KETTL
 LET 68 0                      ; f kettle
 CLEAR 69                      ; f boil
 MESSAGE 180                   ; kettle filled
 DONE
FILL _
 SYSMESS 7
 DONE
; - - - People
TALK _
 PRESENT 13                    ; amos
 ZERO 78                       ; f amos
 LET 78 1                      ; f amos
 PLUS 30 5
 PLACE 11 254                  ; cupkey
 MESSAGE 133                   ; amos first
 DONE
TALK _
 PRESENT 13                    ; amos
 EQ 78 1                       ; f amos
 MESSAGE 134                   ; amos cold
 DONE
TALK _
 PRESENT 13                    ; amos
 MESSAGE 135                   ; amos trolley
 DONE
TALK _
 PRESENT 16                    ; trolley amos
 AT 2                          ; cross
 MESSAGE 137                   ; amos at crossing
 DONE
TALK _
 PRESENT 16                    ; trolley amos
 MESSAGE 136                   ; amos on trolley
 DONE
TALK _
 PRESENT 17                    ; amos box
 ZERO 71                       ; f red
 MESSAGE 138                   ; amos box red
 DONE
TALK _
 PRESENT 17                    ; amos box
 LT 74 2                       ; f signal
 MESSAGE 139                   ; amos box lamp
 DONE
TALK _
 PRESENT 17                    ; amos box
 ZERO 77                       ; f fog
 MESSAGE 140                   ; amos box fog
 DONE
TALK _
 PRESENT 17                    ; amos box
 ZERO 73                       ; f loop
 MESSAGE 141                   ; amos box loop
 DONE
TALK _
 PRESENT 17                    ; amos box
 MESSAGE 142                   ; amos box done
 DONE
TALK _
 MESSAGE 143                   ; nobody
 DONE
SHOUT _
 AT 12                         ; mouth
 PRESENT 13                    ; amos
 MESSAGE 145                   ; shout slip
 DONE
SHOUT _
 AT 13                         ; slip
 MESSAGE 145                   ; shout slip
 DONE
SHOUT _
 AT 12                         ; mouth
 LT 78 3                       ; f amos
 MESSAGE 144                   ; shout cutting
 DONE
SHOUT _
 AT 10                         ; bycabin
 LT 78 3                       ; f amos
 MESSAGE 144                   ; shout cutting
 DONE
SHOUT _
 MESSAGE 143                   ; nobody
 DONE
GIVE COAT
 ABSENT 13                     ; amos
 MESSAGE 155                   ; give not amos
 DONE
GIVE COAT
 NOTCARR 14                    ; coat
 NOTWORN 14                    ; coat
 SYSMESS 28
 DONE
GIVE COAT
 ZERO 78                       ; f amos
 MESSAGE 146                   ; amos wake first
 DONE
GIVE COAT
 DESTROY 14                    ; coat
 LET 78 2                      ; f amos
 PLUS 30 5
 MESSAGE 154                   ; coat given
 DONE
GIVE _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
GIVE _
 ABSENT 13                     ; amos
 ABSENT 16                     ; trolley amos
 ABSENT 17                     ; amos box
 MESSAGE 155                   ; give not amos
 DONE
GIVE _
 MESSAGE 156                   ; give not now
 DONE
; - - - Looking at things
EXAMI NORTH
 MESSAGE 211                   ; x direction
 DONE
EXAMI SOUTH
 MESSAGE 211                   ; x direction
 DONE
EXAMI EAST
 MESSAGE 211                   ; x direction
 DONE
EXAMI WEST
 MESSAGE 211                   ; x direction
 DONE
EXAMI LAMP
 AT 9                          ; top
 NOTEQ 35 55
 LET 34 81                     ; n signal
EXAMI LAMP
 PRESENT 0                     ; lamp
 MESSAGE 157                   ; x lamp lit
 DONE
EXAMI LAMP
 PRESENT 1                     ; lamp out
 ZERO 76                       ; f oil
 MESSAGE 158                   ; x lamp dry
 DONE
EXAMI LAMP
 PRESENT 1                     ; lamp out
 MESSAGE 159                   ; x lamp full
 DONE
EXAMI TELEG
 PRESENT 2                     ; telegram
 MESSAGE 18                    ; x telegram
 DONE
EXAMI KEY
 ADJECT1 BRASS
 PRESENT 11                    ; cupkey
 MESSAGE 198                   ; x cupkey
 DONE
EXAMI KEY
 NOTEQ 35 54                   ; a brass
 PRESENT 3                     ; boxkey
 MESSAGE 197                   ; x boxkey
 DONE
EXAMI KEY
 NOTEQ 35 53                   ; a iron
 PRESENT 11                    ; cupkey
 MESSAGE 198                   ; x cupkey
 DONE
EXAMI MATCH
 PRESENT 4                     ; matches
 MESSAGE 168                   ; x matches
 DONE
EXAMI CAN
 PRESENT 5                     ; can
 ZERO 75                       ; f can
 MESSAGE 169                   ; x can empty
 DONE
EXAMI CAN
 PRESENT 5                     ; can
 MESSAGE 170                   ; x can full
 DONE
EXAMI PAPER
 PRESENT 6                     ; paper
 MESSAGE 175                   ; x paper
 DONE
EXAMI KETTL
 PRESENT 7                     ; kettle
 ZERO 68                       ; f kettle
 MESSAGE 176                   ; x kettle cold
 DONE
EXAMI KETTL
 PRESENT 7                     ; kettle
 EQ 68 1                       ; f kettle
 MESSAGE 177                   ; x kettle hot
 DONE
EXAMI KETTL
 PRESENT 7                     ; kettle
 MESSAGE 178                   ; x kettle empty
 DONE
EXAMI BAR
 PRESENT 8                     ; bar
 MESSAGE 192                   ; x bar
 DONE
EXAMI SPANN
 AT 5                          ; locking
 ZERO 70                       ; f spanner
 MESSAGE 70                    ; x spanner jam
 DONE
EXAMI SPANN
 PRESENT 9                     ; spanner
 MESSAGE 193                   ; x spanner
 DONE
EXAMI DETON
 PRESENT 10                    ; fog
 MESSAGE 194                   ; x fog signals
 DONE
EXAMI DETON
 AT 8                          ; home
 NOTZERO 77                    ; f fog
 MESSAGE 247                   ; see fog
 DONE
EXAMI TROLL
 PRESENT 12                    ; trolley
 AT 10                         ; bycabin
 ZERO 79                       ; f wedge
 MESSAGE 102                   ; x trolley wedge
 DONE
EXAMI TROLL
 PRESENT 12                    ; trolley
 MESSAGE 101                   ; x trolley
 DONE
EXAMI TROLL
 PRESENT 16                    ; trolley amos
 MESSAGE 130                   ; x amos trolley
 DONE
EXAMI AMOS
 PRESENT 13                    ; amos
 ZERO 78                       ; f amos
 MESSAGE 127                   ; x amos slip
 DONE
EXAMI AMOS
 PRESENT 13                    ; amos
 EQ 78 1                       ; f amos
 MESSAGE 128                   ; x amos awake
 DONE
EXAMI AMOS
 PRESENT 13                    ; amos
 MESSAGE 129                   ; x amos coat
 DONE
EXAMI AMOS
 PRESENT 16                    ; trolley amos
 MESSAGE 130                   ; x amos trolley
 DONE
EXAMI AMOS
 PRESENT 17                    ; amos box
 MESSAGE 131                   ; x amos box
 DONE
EXAMI LEG
 PRESENT 13                    ; amos
 MESSAGE 132                   ; x leg
 DONE
EXAMI LEG
 PRESENT 16                    ; trolley amos
 MESSAGE 132                   ; x leg
 DONE
EXAMI LEG
 PRESENT 17                    ; amos box
 MESSAGE 132                   ; x leg
 DONE
EXAMI BICYC
 AT 1                          ; lane
 MESSAGE 19                    ; x bicycle
 DONE
EXAMI COAT
 PRESENT 14                    ; coat
 MESSAGE 121                   ; x coat
 DONE
EXAMI COAT
 PRESENT 13                    ; amos
 EQ 78 2                       ; f amos
 MESSAGE 129                   ; x amos coat
 DONE
EXAMI WEDGE
 PRESENT 15                    ; wedge
 MESSAGE 118                   ; x wedge
 DONE
EXAMI BUCKE
 AT 3                          ; foot
 PREP UNDER
 ZERO 65                       ; f found
 LET 33 69                     ; v move
EXAMI BUCKE
 AT 3                          ; foot
 EQ 33 60                      ; v examine
 MESSAGE 17                    ; x bucket
 DONE
EXAMI LEVER
 AT 4                          ; box
 ADJECT1 RED
 ZERO 71                       ; f red
 MESSAGE 52                    ; x red off
 DONE
EXAMI LEVER
 AT 4                          ; box
 ADJECT1 RED
 MESSAGE 53                    ; x red on
 DONE
EXAMI LEVER
 AT 4                          ; box
 ADJECT1 BLACK
 NOTZERO 73                    ; f loop
 MESSAGE 55                    ; x black on
 DONE
EXAMI LEVER
 AT 4                          ; box
 ADJECT1 BLACK
 ZERO 78                       ; f amos
 MESSAGE 54                    ; x black off
 DONE
EXAMI LEVER
 AT 4                          ; box
 ADJECT1 BLACK
 MESSAGE 54                    ; x black off
 DONE
EXAMI LEVER
 AT 4                          ; box
 ADJECT1 WHITE
 MESSAGE 56                    ; x white
 DONE
EXAMI LEVER
 AT 4                          ; box
 MESSAGE 51                    ; x frame box
 DONE
EXAMI STOVE
 AT 4                          ; box
 ZERO 67                       ; f stove
 MESSAGE 32                    ; x stove out
 DONE
EXAMI STOVE
 AT 4                          ; box
 MESSAGE 33                    ; x stove lit
 DONE
EXAMI COAL
 AT 4                          ; box
 MESSAGE 34                    ; x scuttle
 DONE
EXAMI REGIS
 AT 4                          ; box
 MESSAGE 36                    ; x register
 DONE
EXAMI CLOCK
 AT 4                          ; box
 MESSAGE 39                    ; x clock
EXAMI CLOCK
 PRINT 64                      ; f hour
 MES 42                        ; point
EXAMI CLOCK
 LT 63 10                      ; f min
 MES 41                        ; nought
EXAMI CLOCK
 PRINT 63                      ; f min
 MESSAGE 40                    ; oclock
 DONE
EXAMI CUPBO
 AT 4                          ; box
 ZERO 80                       ; f cupboard
 MESSAGE 43                    ; x cupboard shut
 DONE
EXAMI CUPBO
 AT 4                          ; box
 MESSAGE 44                    ; x cupboard open
 DONE
EXAMI DOOR
 AT 3                          ; foot
 ZERO 66                       ; f door
 MESSAGE 12                    ; door locked
 DONE
EXAMI STEPS
 AT 3                          ; foot
 MESSAGE 26                    ; x steps
 DONE
EXAMI BUTT
 AT 3                          ; foot
 MESSAGE 27                    ; x butt
 DONE
EXAMI ICE
 AT 3                          ; foot
 MESSAGE 27                    ; x butt
 DONE
EXAMI ICE
 AT 7                          ; points
 LET 34 80                     ; n points
EXAMI ICE
 AT 1                          ; lane
 MESSAGE 20                    ; x fence
 DONE
EXAMI WATER
 AT 3                          ; foot
 MESSAGE 27                    ; x butt
 DONE
EXAMI WATER
 PRESENT 7                     ; kettle
 LT 68 2                       ; f kettle
 MESSAGE 179                   ; kettle has water
 DONE
EXAMI DRUM
 AT 6                          ; hut
 MESSAGE 30                    ; x drum
 DONE
EXAMI GLASS
 AT 6                          ; hut
 MESSAGE 31                    ; x glasses
 DONE
EXAMI PARAF
 AT 6                          ; hut
 MESSAGE 30                    ; x drum
 DONE
EXAMI POINT
 AT 5                          ; locking
 LET 34 96                     ; n locking
EXAMI POINT
 AT 7                          ; points
 NOTZERO 73                    ; f loop
 MESSAGE 76                    ; x points loop
 DONE
EXAMI POINT
 AT 7                          ; points
 NOTZERO 72                    ; f thaw
 MESSAGE 75                    ; x points free
 DONE
EXAMI POINT
 AT 7                          ; points
 MESSAGE 74                    ; x points
 DONE
EXAMI SIGNA
 AT 8                          ; home
 EQ 74 2                       ; f signal
 NOTZERO 71                    ; f red
 MESSAGE 248                   ; see red light
 DONE
EXAMI SIGNA
 AT 8                          ; home
 LT 74 2                       ; f signal
 MESSAGE 85                    ; x signal foot
 DONE
EXAMI SIGNA
 AT 8                          ; home
 MESSAGE 249                   ; see green light
 DONE
EXAMI SIGNA
 AT 9                          ; top
 ZERO 71                       ; f red
 MESSAGE 86                    ; x signal top off
EXAMI SIGNA
 AT 9                          ; top
 NOTZERO 71                    ; f red
 MESSAGE 87                    ; x signal top on
EXAMI SIGNA
 AT 9                          ; top
 ZERO 74                       ; f signal
 MESSAGE 88                    ; x case dry
 DONE
EXAMI SIGNA
 AT 9                          ; top
 EQ 74 1                       ; f signal
 MESSAGE 89                    ; x case full
 DONE
EXAMI SIGNA
 AT 9                          ; top
 MESSAGE 90                    ; x case lit
 DONE
EXAMI LADDE
 AT 8                          ; home
 MESSAGE 98                    ; x ladder
 DONE
EXAMI LADDE
 AT 9                          ; top
 MESSAGE 98                    ; x ladder
 DONE
EXAMI RAIL
 EQ 81 2                       ; f mail
 ATGT 1                        ; lane
 MESSAGE 24                    ; x rails hum
 DONE
EXAMI RAIL
 AT 2                          ; cross
 MESSAGE 23                    ; x rails
 DONE
EXAMI RAIL
 ATGT 6                        ; hut
 NOTAT 11                      ; cabin
 NOTAT 9                       ; top
 MESSAGE 23                    ; x rails
 DONE
EXAMI GATE
 ATLT 3                        ; foot
 MESSAGE 22                    ; x gates
 DONE
EXAMI FOG
 MESSAGE 21                    ; x fog
 DONE
EXAMI WIRE
 AT 12                         ; mouth
 MESSAGE 122                   ; x wires
 DONE
EXAMI WIRE
 AT 1                          ; lane
 MESSAGE 20                    ; x fence
 DONE
EXAMI POLE
 AT 13                         ; slip
 MESSAGE 123                   ; x pole
 DONE
EXAMI SLIP
 AT 13                         ; slip
 MESSAGE 124                   ; x slip
 DONE
EXAMI HAWTH
 AT 13                         ; slip
 MESSAGE 125                   ; x tree
 DONE
EXAMI WINDO
 AT 4                          ; box
 MESSAGE 48                    ; x windows
 DONE
EXAMI INSTR
 AT 4                          ; box
 MESSAGE 49                    ; x instruments
 DONE
EXAMI DESK
 AT 4                          ; box
 MESSAGE 50                    ; x desk
 DONE
EXAMI BENCH
 AT 11                         ; cabin
 MESSAGE 120                   ; x bench
 DONE
EXAMI CABIN
 AT 10                         ; bycabin
 MESSAGE 119                   ; x cabin
 DONE
EXAMI BOX
 AT 2                          ; cross
 MESSAGE 25                    ; x box outside
 DONE
EXAMI BOX
 AT 3                          ; foot
 MESSAGE 25                    ; x box outside
 DONE
EXAMI BOX
 PRESENT 4                     ; matches
 MESSAGE 168                   ; x matches
 DONE
EXAMI LOCKI
 AT 5                          ; locking
 ZERO 70                       ; f spanner
 MESSAGE 69                    ; x locking jam
 DONE
EXAMI LOCKI
 AT 5                          ; locking
 MESSAGE 68                    ; x locking
 DONE
EXAMI LOCKI
 AT 4                          ; box
 MESSAGE 51                    ; x frame box
 DONE
EXAMI HUT
 AT 6                          ; hut
 MESSAGE 29                    ; x hut
 DONE
EXAMI HUT
 AT 3                          ; foot
 MESSAGE 29                    ; x hut
 DONE
EXAMI TRAIN
 MESSAGE 216                   ; x train none
 DONE
EXAMI LOOP
 AT 7                          ; points
 MESSAGE 84                    ; x loop
 DONE
EXAMI FENCE
 AT 1                          ; lane
 MESSAGE 20                    ; x fence
 DONE
EXAMI DUSTE
 AT 4                          ; box
 MESSAGE 67                    ; x duster
 DONE
EXAMI ME
 MESSAGE 209                   ; x me
 DONE
EXAMI _
 MESSAGE 210                   ; x nothing
 DONE
; - - - Opening
OPEN DOOR
 AT 3                          ; foot
 NOTZERO 66                    ; f door
 MESSAGE 15                    ; door open already
 DONE
OPEN DOOR
 AT 3                          ; foot
 NOTCARR 3                     ; boxkey
 MESSAGE 14                    ; door need key
 DONE
OPEN DOOR
 AT 3                          ; foot
 LET 66 1                      ; f door
 MESSAGE 13                    ; unlocks
 DONE
OPEN DOOR
 MESSAGE 213                   ; open odd
 DONE
OPEN BOX
 AT 3                          ; foot
 ZERO 66                       ; f door
 CARRIED 3                     ; boxkey
 LET 66 1                      ; f door
 MESSAGE 13                    ; unlocks
 DONE
OPEN CUPBO
 AT 4                          ; box
 NOTZERO 80                    ; f cupboard
 MESSAGE 44                    ; x cupboard open
 DONE
OPEN CUPBO
 AT 4                          ; box
 NOTCARR 11                    ; cupkey
 MESSAGE 46                    ; cupboard locked
 DONE
OPEN CUPBO
 AT 4                          ; box
 LET 80 1                      ; f cupboard
 PLACE 10 4                    ; fog, box
 LET 46 59                     ; n fog signals
 LET 47 255
 MESSAGE 45                    ; cupboard opens
 DONE
OPEN GATE
 ATLT 3                        ; foot
 MESSAGE 213                   ; open odd
 DONE
OPEN WINDO
 AT 4                          ; box
 MESSAGE 213                   ; open odd
 DONE
OPEN STOVE
 AT 4                          ; box
 ZERO 67                       ; f stove
 MESSAGE 32                    ; x stove out
 DONE
OPEN STOVE
 AT 4                          ; box
 MESSAGE 33                    ; x stove lit
 DONE
OPEN DETON
 PRESENT 10                    ; fog
 MESSAGE 194                   ; x fog signals
 DONE
OPEN SIGNA
 AT 9                          ; top
 MESSAGE 88                    ; x case dry
 DONE
OPEN _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
OPEN _
 MESSAGE 213                   ; open odd
 DONE
CLOSE DOOR
 MESSAGE 213                   ; open odd
 DONE
CLOSE GATE
 ATLT 3                        ; foot
 MESSAGE 213                   ; open odd
 DONE
; - - - Levers, the trolley, and pushing things about
PUSH LEVER
 NOTAT 4                       ; box
 SYSMESS 26
 DONE
PUSH LEVER
 ADJECT1 WHITE
 MESSAGE 58                    ; white lever
 DONE
PUSH LEVER
 ADJECT1 BLACK
 NOTZERO 73                    ; f loop
 MESSAGE 62                    ; red leave
 DONE
PUSH LEVER
 ADJECT1 BLACK
 MESSAGE 66                    ; black in frame
 DONE
PUSH LEVER
 EQ 35 255
 MESSAGE 57                    ; which lever
 DONE
PUSH LEVER
 ADJECT1 RED
 NOTZERO 71                    ; f red
 MESSAGE 62                    ; red leave
 DONE
PUSH LEVER
 ADJECT1 RED
 ZERO 70                       ; f spanner
 MESSAGE 60                    ; red stuck
 DONE
PUSH LEVER
 ADJECT1 RED
 LET 71 1                      ; f red
 PLUS 30 10
 MESSAGE 61                    ; red back
 DONE
PULL LEVER
 NOTAT 4                       ; box
 SYSMESS 26
 DONE
PULL LEVER
 ADJECT1 WHITE
 MESSAGE 58                    ; white lever
 DONE
PULL LEVER
 EQ 35 255
 MESSAGE 57                    ; which lever
 DONE
PULL LEVER
 ADJECT1 RED
 NOTZERO 71                    ; f red
 MESSAGE 62                    ; red leave
 DONE
PULL LEVER
 ADJECT1 RED
 MESSAGE 59                    ; red already off
 DONE
PULL LEVER
 ADJECT1 BLACK
 ZERO 71                       ; f red
 MESSAGE 63                    ; black locked
 DONE
PULL LEVER
 ADJECT1 BLACK
 NOTZERO 73                    ; f loop
 MESSAGE 62                    ; red leave
 DONE
PULL LEVER
 ADJECT1 BLACK
 ZERO 72                       ; f thaw
 MESSAGE 64                    ; black frozen
 DONE
PULL LEVER
 ADJECT1 BLACK
 LET 73 1                      ; f loop
 PLUS 30 5
 MESSAGE 65                    ; black over
 DONE
PUSH TROLL
 ABSENT 12                     ; trolley
 ABSENT 16                     ; trolley amos
 SYSMESS 26
 DONE
PUSH TROLL
 PRESENT 12                    ; trolley
 AT 10                         ; bycabin
 ZERO 79                       ; f wedge
 MESSAGE 103                   ; trolley wedged
 DONE
PUSH TROLL
 PRESENT 12                    ; trolley
 AT 10                         ; bycabin
 EQ 44 2                       ; v north
 MESSAGE 104                   ; trolley no north
 DONE
PUSH TROLL
 NOTCARR 0                     ; lamp
 NOTAT 2                       ; cross
 MESSAGE 105                   ; trolley no light
 DONE
PUSH TROLL
 PRESENT 12                    ; trolley
 AT 10                         ; bycabin
 PLACE 12 12                   ; trolley, mouth
 GOTO 12                       ; mouth
 PROCESS 3
 MESSAGE 106                   ; trolley out
 NEWLINE
 DESC
PUSH TROLL
 PRESENT 12                    ; trolley
 AT 12                         ; mouth
 EQ 44 2                       ; v north
 PLACE 12 10                   ; trolley, bycabin
 GOTO 10                       ; bycabin
 PROCESS 3
 MESSAGE 108                   ; trolley back
 NEWLINE
 DESC
PUSH TROLL
 PRESENT 12                    ; trolley
 AT 12                         ; mouth
 PLACE 12 13                   ; trolley, slip
 GOTO 13                       ; slip
 PROCESS 3
 MESSAGE 107                   ; trolley south
 NEWLINE
 DESC
PUSH TROLL
 PRESENT 12                    ; trolley
 AT 13                         ; slip
 EQ 44 2                       ; v north
 PLACE 12 12                   ; trolley, mouth
 GOTO 12                       ; mouth
 PROCESS 3
 MESSAGE 108                   ; trolley back
 NEWLINE
 DESC
PUSH TROLL
 PRESENT 12                    ; trolley
 MESSAGE 109                   ; trolley end
 DONE
PUSH TROLL
 EQ 44 3                       ; v south
 MESSAGE 113                   ; trolley amos wrong
 DONE
PUSH TROLL
 AT 13                         ; slip
 PLACE 16 12                   ; trolley amos, mouth
 GOTO 12                       ; mouth
 PROCESS 3
 MESSAGE 110                   ; trolley amos north
 NEWLINE
 DESC
PUSH TROLL
 AT 12                         ; mouth
 PLACE 16 10                   ; trolley amos, bycabin
 GOTO 10                       ; bycabin
 PROCESS 3
 MESSAGE 111                   ; trolley amos out
 NEWLINE
 DESC
PUSH TROLL
 AT 10                         ; bycabin
 PLACE 16 2                    ; trolley amos, cross
 GOTO 2                        ; cross
 PROCESS 3
 MESSAGE 112                   ; trolley amos last
 NEWLINE
 DESC
PUSH TROLL
 MESSAGE 114                   ; trolley amos here
 DONE
PUSH BUCKE
 AT 3                          ; foot
 LET 33 69                     ; v move
PUSH _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
PUSH _
 EQ 33 67                      ; v push
 MESSAGE 215                   ; move odd
 DONE
PULL BUCKE
 AT 3                          ; foot
 LET 33 69                     ; v move
PULL _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
PULL _
 EQ 33 68                      ; v pull
 MESSAGE 215                   ; move odd
 DONE
MOVE BUCKE
 AT 3                          ; foot
 NOTZERO 65                    ; f found
 MESSAGE 215                   ; move odd
 DONE
MOVE BUCKE
 AT 3                          ; foot
 LET 65 1                      ; f found
 PLUS 30 5
 PLACE 3 3                     ; boxkey, foot
 LET 46 52                     ; n key
 LET 47 255
 MESSAGE 16                    ; found key
 DONE
MOVE _
 EQ 34 255
 MESSAGE 212                   ; get what
 DONE
MOVE _
 MESSAGE 215                   ; move odd
 DONE
RIDE TROLL
 PRESENT 12                    ; trolley
 MESSAGE 116                   ; ride trolley
 DONE
CLIMB SLIP
 AT 13                         ; slip
 MESSAGE 11                    ; slip blocks
 DONE
CLIMB _
 SYSMESS 7
 DONE
; - - - Pouring
POUR KETTL
 ABSENT 7                      ; kettle
 SYSMESS 26
 DONE
POUR KETTL
 EQ 68 2                       ; f kettle
 MESSAGE 178                   ; x kettle empty
 DONE
POUR KETTL
 NOTAT 7                       ; points
 MESSAGE 82                    ; pour where
 DONE
POUR KETTL
 NOTZERO 72                    ; f thaw
 MESSAGE 83                    ; thawed already
 DONE
POUR KETTL
 ZERO 68                       ; f kettle
 MESSAGE 81                    ; cold water
 DONE
POUR KETTL
 LET 68 2                      ; f kettle
 LET 72 1                      ; f thaw
 CLEAR 69                      ; f boil
 PLUS 30 10
 MESSAGE 80                    ; thaw
 DONE
POUR PARAF
 AT 7                          ; points
 CARRIED 5                     ; can
 MESSAGE 79                    ; fire ice
 DONE
POUR PARAF
 CARRIED 5                     ; can
 MESSAGE 174                   ; pour waste
 DONE
POUR CAN
 AT 7                          ; points
 CARRIED 5                     ; can
 MESSAGE 79                    ; fire ice
 DONE
POUR CAN
 CARRIED 5                     ; can
 MESSAGE 174                   ; pour waste
 DONE
POUR _
 SYSMESS 7
 DONE
; - - - Force
PRISE SPANN
 NOTAT 5                       ; locking
 MESSAGE 73                    ; prise what
 DONE
PRISE SPANN
 NOTZERO 70                    ; f spanner
 MESSAGE 73                    ; prise what
 DONE
PRISE SPANN
 NOTCARR 8                     ; bar
 MESSAGE 71                    ; spanner stuck
 DONE
PRISE SPANN
 LET 70 1                      ; f spanner
 PLACE 9 5                     ; spanner, locking
 PLUS 30 5
 MESSAGE 72                    ; spanner free
 DONE
PRISE CUPBO
 AT 4                          ; box
 MESSAGE 47                    ; cupboard break
 DONE
PRISE ICE
 AT 7                          ; points
 LET 33 75                     ; v break
PRISE POINT
 AT 7                          ; points
 LET 33 75                     ; v break
PRISE _
 EQ 33 72                      ; v prise
 MESSAGE 73                    ; prise what
 DONE
BREAK ICE
 AT 7                          ; points
 NOTZERO 72                    ; f thaw
 MESSAGE 83                    ; thawed already
 DONE
BREAK ICE
 AT 7                          ; points
 CARRIED 8                     ; bar
 MESSAGE 78                    ; bar ice
 DONE
BREAK ICE
 AT 7                          ; points
 MESSAGE 77                    ; chip ice
 DONE
BREAK ICE
 AT 3                          ; foot
 MESSAGE 28                    ; break butt
 DONE
BREAK BUTT
 AT 3                          ; foot
 MESSAGE 28                    ; break butt
 DONE
BREAK POINT
 AT 7                          ; points
 ZERO 72                       ; f thaw
 CARRIED 8                     ; bar
 MESSAGE 78                    ; bar ice
 DONE
BREAK POINT
 AT 7                          ; points
 ZERO 72                       ; f thaw
 MESSAGE 77                    ; chip ice
 DONE
BREAK CUPBO
 AT 4                          ; box
 MESSAGE 47                    ; cupboard break
 DONE
BREAK DETON
 PRESENT 10                    ; fog
 MESSAGE 214                   ; break odd
 DONE
BREAK _
 MESSAGE 214                   ; break odd
 DONE
; - - - Odds and ends
CLEAN _
 SYSMESS 7
 DONE
TURN LAMP
 PRESENT 0                     ; lamp
 PREP OFF
 MESSAGE 166                   ; lamp keep
 DONE
TURN DRUM
 AT 6                          ; hut
 MESSAGE 173                   ; tap what
 DONE
; The entries that record and replay a session come in with the import, before these
TURN _
 EQ 34 107                     ; n script
 PREP ON
 SYSMESS 54
 NEWLINE
 DONE
TURN _
 EQ 34 107                     ; n script
 PREP OFF
 SYSMESS 55
 NEWLINE
 DONE
RING INSTR
 AT 4                          ; box
 MESSAGE 207                   ; ring dead
 DONE
BURN PAPER
 PRESENT 6                     ; paper
 MESSAGE 191                   ; burn elsewhere
 DONE
BURN TELEG
 PRESENT 2                     ; telegram
 MESSAGE 191                   ; burn elsewhere
 DONE
BURN _
 SYSMESS 7
 DONE
BOIL _
 ABSENT 7                      ; kettle
 SYSMESS 26
 DONE
BOIL _
 EQ 68 1                       ; f kettle
 MESSAGE 184                   ; kettle standing
 DONE
BOIL _
 AT 4                          ; box
 CARRIED 7                     ; kettle
 PLACE 7 4                     ; kettle, box
 MESSAGE 182                   ; kettle on
BOIL _
 AT 4                          ; box
 NOTZERO 67                    ; f stove
 ZERO 68                       ; f kettle
 MESSAGE 184                   ; kettle standing
 DONE
BOIL _
 MESSAGE 186                   ; kettle to stove
 DONE
THAW _
 MESSAGE 186                   ; kettle to stove
 DONE
STOP _
 MESSAGE 205                   ; stop train
 DONE
DRINK _
 MESSAGE 206                   ; drink
 DONE
USE _
 MESSAGE 208                   ; use how
 DONE
DIG _
 AT 13                         ; slip
 MESSAGE 126                   ; dig
 DONE
WRITE _
 AT 4                          ; box
 MESSAGE 37                    ; write register
 DONE
LISTE _
 EQ 81 2                       ; f mail
 MESSAGE 201                   ; listen hum
 DONE
LISTE _
 MESSAGE 200                   ; listen
 DONE
SLEEP _
 MESSAGE 203                   ; sleep
 DONE
SMELL _
 AT 6                          ; hut
 MESSAGE 29                    ; x hut
 DONE
SMELL _
 MESSAGE 202                   ; smell
 DONE
JUMP _
 AT 9                          ; top
 MESSAGE 99                    ; jump top
 DONE
JUMP _
 MESSAGE 100                   ; jump
 DONE
YES _
 MESSAGE 204                   ; yes no
 DONE
; - - - What is left: a way to go, and the last word
_ _
 LT 33 14
 MOVE 38
 PROCESS 3
 DESC
_ _
 LT 33 14
 MESSAGE 4                     ; no way
 DONE
_ _
 EQ 33 255
 MESSAGE 5                     ; what with
 DONE
_ _
 SYSMESS 7
 DONE
/PRO 1
; After each description
_ _
 NEWLINE
_ _
 AT 0                          ; intro
 LET 64 3                      ; f hour
 LET 63 10                     ; f min
 LET 53 64
 ABILITY 15 200
 PROMPT 2
 NEWLINE
 MESSAGE 1                     ; intro more
 NEWLINE
 GOTO 1                        ; lane
 DESC
_ _
 AT 2                          ; cross
 ZERO 67                       ; f stove
 MESSAGE 244                   ; see box dark
_ _
 AT 2                          ; cross
 NOTZERO 67                    ; f stove
 MESSAGE 245                   ; see box light
_ _
 AT 4                          ; box
 ZERO 67                       ; f stove
 MESSAGE 241                   ; see stove out
_ _
 AT 4                          ; box
 NOTZERO 67                    ; f stove
 MESSAGE 242                   ; see stove lit
_ _
 AT 4                          ; box
 ZERO 71                       ; f red
 MESSAGE 243                   ; see red off
_ _
 AT 5                          ; locking
 PRESENT 0                     ; lamp
 ZERO 70                       ; f spanner
 MESSAGE 246                   ; see jam
_ _
 AT 7                          ; points
 NOTZERO 73                    ; f loop
 MESSAGE 250                   ; see loop
_ _
 AT 8                          ; home
 EQ 74 2                       ; f signal
 NOTZERO 71                    ; f red
 MESSAGE 248                   ; see red light
_ _
 AT 8                          ; home
 EQ 74 2                       ; f signal
 ZERO 71                       ; f red
 MESSAGE 249                   ; see green light
_ _
 AT 8                          ; home
 NOTZERO 77                    ; f fog
 MESSAGE 247                   ; see fog
_ _
 AT 9                          ; top
 ZERO 71                       ; f red
 MESSAGE 86                    ; x signal top off
_ _
 AT 9                          ; top
 NOTZERO 71                    ; f red
 MESSAGE 87                    ; x signal top on
_ _
 AT 9                          ; top
 LT 74 2                       ; f signal
 MESSAGE 251                   ; see case out
_ _
 AT 9                          ; top
 EQ 74 2                       ; f signal
 NOTZERO 71                    ; f red
 MESSAGE 252                   ; see case lit
_ _
 AT 9                          ; top
 EQ 74 2                       ; f signal
 ZERO 71                       ; f red
 MESSAGE 252                   ; see case lit
_ _
 NOTEQ 4 1
 LISTOBJ
_ _
 LET 4 2
/PRO 2
; Before and after each sentence
_ _
 NOTZERO 27
 CLEAR 27
 QUIT
 SCORE
 TURNS
 END
_ _
 NOTSAME 31 61                 ; f turn
 COPYFF 31 61                  ; f turn
 PROCESS 4
_ _
 NOTZERO 71                    ; f red
 EQ 74 2                       ; f signal
 NOTZERO 77                    ; f fog
 NOTZERO 73                    ; f loop
 EQ 78 4                       ; f amos
 PROCESS 6
_ _
 EQ 64 4                       ; f hour
 GT 63 39                      ; f min
 PROCESS 5
_ _
 EQ 64 4                       ; f hour
 GT 63 24                      ; f min
 ZERO 81                       ; f mail
 LET 81 1                      ; f mail
 NEWLINE
 MESSAGE 228                   ; whistle
_ _
 EQ 64 4                       ; f hour
 GT 63 34                      ; f min
 EQ 81 1                       ; f mail
 LET 81 2                      ; f mail
 NEWLINE
 MESSAGE 229                   ; hum
/PRO 3
; Whether it is dark where the player is now
_ _
 CLEAR 0
_ _
 AT 5                          ; locking
 SET 0
_ _
 ATGT 11                       ; cabin
 SET 0
/PRO 4
; Half a minute passes
_ _
 PLUS 62 1                     ; f half
_ _
 GT 62 1                       ; f half
 CLEAR 62                      ; f half
 PLUS 63 1                     ; f min
_ _
 EQ 63 60                      ; f min
 CLEAR 63                      ; f min
 PLUS 64 1                     ; f hour
_ _
 ISNOTAT 7 4                   ; kettle, box
 CLEAR 69                      ; f boil
_ _
 ISAT 7 4                      ; kettle, box
 NOTZERO 67                    ; f stove
 ZERO 68                       ; f kettle
 PLUS 69 1                     ; f boil
_ _
 EQ 69 8                       ; f boil
 ZERO 68                       ; f kettle
 LET 68 1                      ; f kettle
 AT 4                          ; box
 NEWLINE
 MESSAGE 185                   ; kettle boils
/PRO 5
; The mail arrives
_ _
 NEWLINE
_ _
 NOTZERO 77                    ; f fog
 MESSAGE 230                   ; end stopped
_ _
 NOTZERO 77                    ; f fog
 LT 78 2                       ; f amos
 MESSAGE 232                   ; end stopped lost
_ _
 NOTZERO 77                    ; f fog
 GT 78 1                       ; f amos
 LT 78 4                       ; f amos
 MESSAGE 233                   ; end stopped coat
_ _
 NOTZERO 77                    ; f fog
 EQ 78 4                       ; f amos
 MESSAGE 231                   ; end stopped amos
_ _
 ZERO 77                       ; f fog
 NOTZERO 73                    ; f loop
 MESSAGE 235                   ; end sand
_ _
 ZERO 77                       ; f fog
 ZERO 73                       ; f loop
 NOTZERO 71                    ; f red
 EQ 74 2                       ; f signal
 MESSAGE 234                   ; end late
 LET 77 2                      ; f fog
_ _
 ZERO 77                       ; f fog
 ZERO 73                       ; f loop
 MESSAGE 237                   ; end crash
_ _
 NOTEQ 77 1                    ; f fog
 LT 78 2                       ; f amos
 NOTZERO 73                    ; f loop
 MESSAGE 236                   ; end sand lost
_ _
 NEWLINE
 SCORE
 TURNS
 END
/PRO 6
; Everything is done
_ _
 NEWLINE
_ _
 AT 4                          ; box
 MESSAGE 238                   ; end window
_ _
 NOTAT 4                       ; box
 MESSAGE 239                   ; end back
_ _
 MESSAGE 240                   ; end all
 NEWLINE
 SCORE
 TURNS
 END
/PRO 7
; One hint: the first thing that has not been done
_ _
 ZERO 65                       ; f found
 MESSAGE 218                   ; h bucket
 DONE
_ _
 ZERO 66                       ; f door
 MESSAGE 218                   ; h bucket
 DONE
_ _
 ISAT 0 252                    ; lamp
 NOTCARR 1                     ; lamp out
 MESSAGE 219                   ; h lamp
 DONE
_ _
 ISAT 0 252                    ; lamp
 ZERO 76                       ; f oil
 MESSAGE 219                   ; h lamp
 DONE
_ _
 ISAT 0 252                    ; lamp
 MESSAGE 219                   ; h lamp
 DONE
_ _
 AT 13                         ; slip
 ZERO 78                       ; f amos
 MESSAGE 220                   ; h amos
 DONE
_ _
 ZERO 78                       ; f amos
 MESSAGE 220                   ; h amos
 DONE
_ _
 ZERO 70                       ; f spanner
 MESSAGE 221                   ; h spanner
 DONE
_ _
 ZERO 71                       ; f red
 MESSAGE 221                   ; h spanner
 DONE
_ _
 EQ 78 1                       ; f amos
 MESSAGE 222                   ; h coat
 DONE
_ _
 ZERO 74                       ; f signal
 MESSAGE 223                   ; h signal fill
 DONE
_ _
 EQ 74 1                       ; f signal
 MESSAGE 223                   ; h signal fill
 DONE
_ _
 ZERO 77                       ; f fog
 MESSAGE 224                   ; h fog
 DONE
_ _
 ZERO 67                       ; f stove
 MESSAGE 225                   ; h stove
 DONE
_ _
 ZERO 72                       ; f thaw
 MESSAGE 226                   ; h kettle
 DONE
_ _
 ZERO 73                       ; f loop
 MESSAGE 226                   ; h kettle
 DONE
_ _
 EQ 78 2                       ; f amos
 MESSAGE 227                   ; h trolley
 DONE
_ _
 MESSAGE 227                   ; h trolley
 DONE

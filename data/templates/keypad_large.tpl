! Overlay for the six keys above the arrow keys, as the graphics editor uses
! them; about 1 1/2 inches wide in the listing font. Cut it out along the frame.
! Each pair is a count and a character, or the code of one (32 is a blank);
! a count of 0 prints the line as many times as the number behind it says.
1 + 5 - 1 + 5 - 1 + 5 - 1 + 0 1
1 | 1 32 1 I 1 N 1 S 1 32 1 | 1 32 1 H 1 O 1 M 1 E 1 | 1 32 1 P 1 G 1 U 1 P 1 | 0 1
1 | 5 32 1 | 5 32 1 | 5 32 1 | 0 1
1 | 1 U 1 P 1 32 1 + 1 32 1 | 1 U 1 P 1 32 1 + 1 32 1 | 1 32 1 S 1 T 1 E 1 P 1 | 0 1
1 | 1 32 1 L 1 E 1 F 1 T 1 | 1 R 1 I 1 G 1 H 1 T 1 | 1 32 1 B 1 A 1 C 1 K 1 | 0 1
1 + 5 - 1 + 5 - 1 + 5 - 1 + 0 1
1 | 1 32 1 D 1 E 1 L 1 32 1 | 1 32 1 E 1 N 1 D 1 32 1 | 1 32 1 P 1 G 1 D 1 N 1 | 0 1
1 | 5 32 1 | 5 32 1 | 5 32 1 | 0 1
1 | 1 D 1 O 1 W 1 N 1 + 1 | 1 D 1 O 1 W 1 N 1 + 1 | 1 32 1 S 1 T 1 E 1 P 1 | 0 1
1 | 1 32 1 L 1 E 1 F 1 T 1 | 1 R 1 I 1 G 1 H 1 T 1 | 2 32 1 O 1 N 1 32 1 | 0 1
1 + 5 - 1 + 5 - 1 + 5 - 1 + 0 1

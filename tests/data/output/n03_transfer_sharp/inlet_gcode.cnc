//This file contains the G-Code coordinates for the inlet//
//ports of project: n03_transfer_sharp.//
//The origin (datum) for the coordinates is the centre of the//
//inner rotor (centre of drive shaft).//
//The coordinates in this file are in MM.//
//This file contains 1 sections.
//Section 1: Lower housing Inlet port//
X0.0000Y0.0000
G01X3.3713Y-3.6925
//MOVE TOOL DOWN TO CUTTING DEPTH AT THIS POINT!!//
G02X-2.2390Y-4.4706R5.0000
G01X-4.4755Y-10.7178
G03X6.7495Y-6.6668R11.0000
G01X3.3713Y-3.6925
//MOVE TOOL UP OUT OF PORT AT THIS POINT!!//

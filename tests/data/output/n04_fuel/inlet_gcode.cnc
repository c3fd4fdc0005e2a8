//This file contains the G-Code coordinates for the inlet//
//ports of project: n04_fuel.//
//The origin (datum) for the coordinates is the centre of the//
//inner rotor (centre of drive shaft).//
//The coordinates in this file are in MM.//
//This file contains 1 sections.
//Section 1: Lower housing Inlet port//
X0.0000Y0.0000
G01X4.4904Y-2.1991
//MOVE TOOL DOWN TO CUTTING DEPTH AT THIS POINT!!//
G02X-3.4251Y-3.6426R5.0000
G01X-8.2073Y-9.9233
G03X8.6800Y-4.0230R11.6000
G01X4.4904Y-2.1991
//MOVE TOOL UP OUT OF PORT AT THIS POINT!!//

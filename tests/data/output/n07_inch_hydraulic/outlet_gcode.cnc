//This file contains the G-Code coordinates for the outlet//
//ports of project: n07_inch_hydraulic.//
//The origin (datum) for the coordinates is the centre of the//
//inner rotor (centre of drive shaft).//
//The coordinates in this file are in INCHES.//
//This file contains 1 sections.
//Section 1: Lower housing Outlet port//
X0.0000Y0.0000
G01X0.6565Y0.1624
//MOVE TOOL DOWN TO CUTTING DEPTH AT THIS POINT!!//
G02X0.5864Y0.2014R0.0600
G03X-0.5084Y0.3549R0.6200
G02X-0.5863Y0.3366R0.0600
G01X-0.8581Y0.4849
G02X-0.8771Y0.5738R0.0600
G02X0.7941Y0.2586R0.9500
G02X0.7498Y0.1837R0.0600
G01X0.6565Y0.1624
//MOVE TOOL UP OUT OF PORT AT THIS POINT!!//

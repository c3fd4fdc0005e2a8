//This file contains the G-Code coordinates for the outer//
//rotor of project: n03_transfer_sharp.//
//The origin (datum) for the coordinates is the centre of the//
//outer rotor.//
//The coordinates in this file are in MM.//
//Arcs checked: none is longer than 170 degrees.//
X0.0000Y0.0000
G01X0.2477Y10.9972
G02X-9.6477Y5.2841R8.0000
G03X-9.6477Y-5.2841R11.0000
G02X0.2477Y-10.9972R8.0000
G03X9.4000Y-5.7131R11.0000
G02X9.4000Y5.7131R8.0000
G03X0.2477Y10.9972R11.0000
G01X0.0000Y0.0000

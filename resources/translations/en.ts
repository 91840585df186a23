<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="PS_PANEL_NAME">
        <source>Page Settings</source>
        <translation>Page Settings</translation>
    </message>
    <message id="RS_TapeWidth">
        <source>Tape Width:</source>
        <translation>Tape Width:</translation>
    </message>
    <message id="RS_TapeLength">
        <source>Tape Length:</source>
        <translation>Tape Length:</translation>
    </message>
    <message id="RS_Margin">
        <source>Margin:</source>
        <translation>Margin:</translation>
    </message>
    <message id="RS_PrintTapeLength">
        <source>Print Tape Length:</source>
        <translation>Print Tape Length:</translation>
    </message>
    <message id="RS_Quality">
        <source>Print Quality:</source>
        <translation>Print Quality:</translation>
    </message>
    <message id="RS_Resolution">
        <source>Resolution:</source>
        <translation>Resolution:</translation>
    </message>
    <message id="RS_Compress">
        <source>Compression:</source>
        <translation>Compression:</translation>
    </message>
    <message id="RS_TapeType">
        <source>Tape Material:</source>
        <translation>Tape Material:</translation>
    </message>
    <message id="RS_TapeColor">
        <source>Tape Colour:</source>
        <translation>Tape Colour:</translation>
    </message>
    <message id="RS_InkColor">
        <source>Ink Colour:</source>
        <translation>Ink Colour:</translation>
    </message>
    <message id="RS_TapeWidthNot">
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message id="RS_mm">
        <source>mm</source>
        <translation>&#xa0;mm</translation>
    </message>
    <message id="RS_Inch">
        <source>in</source>
        <translation>&#xa0;in</translation>
    </message>
    <message id="RS_m">
        <source>m</source>
        <translation>&#xa0;m</translation>
    </message>
    <message id="RS_QualitySpeed">
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message id="RS_QualityQuality">
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message id="RS_CompressOFF">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="RS_CompressON">
        <source>On</source>
        <translation>On</translation>
    </message>
    <message id="RS_Resol300300">
        <source>300 × 300 dpi</source>
        <translation>300 × 300 dpi</translation>
    </message>
    <message id="RS_Resol300600">
        <source>300 × 600 dpi</source>
        <translation>300 × 600 dpi</translation>
    </message>
    <message id="RS_Resol180360">
        <source>180 × 360 dpi</source>
        <translation>180 × 360 dpi</translation>
    </message>
    <message id="RS_Resol360360">
        <source>360 × 360 dpi</source>
        <translation>360 × 360 dpi</translation>
    </message>
    <message id="RS_Resol360720">
        <source>360 × 720 dpi</source>
        <translation>360 × 720 dpi</translation>
    </message>
    <message id="RS_KsResolS300300">
        <source>Speed (300×300 dpi)</source>
        <translation>Speed (300×300 dpi)</translation>
    </message>
    <message id="RS_KsResolQ300300">
        <source>Quality (300×300 dpi)</source>
        <translation>Quality (300×300 dpi)</translation>
    </message>
    <message id="RS_KsResolQ300600">
        <source>Quality (300×600 dpi)</source>
        <translation>Quality (300×600 dpi)</translation>
    </message>
    <message id="RS_KsTapeTypeOPP">
        <source>Film (OPP)</source>
        <translation>Film (OPP)</translation>
    </message>
    <message id="RS_KsTapeTypePET">
        <source>Polyester (PET)</source>
        <translation>Polyester (PET)</translation>
    </message>
    <message id="RS_KsTapeTypeCloth">
        <source>Cloth</source>
        <translation>Cloth</translation>
    </message>
    <message id="RS_TapeTypeOPP">
        <source>Film (OPP)</source>
        <translation>Film (OPP)</translation>
    </message>
    <message id="RS_TapeTypePET">
        <source>Polyester (PET)</source>
        <translation>Polyester (PET)</translation>
    </message>
    <message id="RS_TapeTypeCloth">
        <source>Cloth</source>
        <translation>Cloth</translation>
    </message>
    <message id="RS_TapeColorWhite">
        <source>White</source>
        <translation>White</translation>
    </message>
    <message id="RS_TapeColorBlue">
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message id="RS_TapeColorRed">
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message id="RS_TapeColorYellow">
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message id="RS_TapeColorPink">
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
    <message id="RS_TapeColorClear">
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message id="RS_TapeColorPastelBlue">
        <source>Pastel Blue</source>
        <translation>Pastel Blue</translation>
    </message>
    <message id="RS_TapeColorPastelRed">
        <source>Pastel Red</source>
        <translation>Pastel Red</translation>
    </message>
    <message id="RS_TapeColorDeepBlue">
        <source>Deep Blue</source>
        <translation>Deep Blue</translation>
    </message>
    <message id="RS_InkColorBlack">
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message id="RS_InkColorBlue">
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message id="RS_InkColorRed">
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message id="RS_InkColorWhite">
        <source>White</source>
        <translation>White</translation>
    </message>
    <message id="RS_InkColorGold">
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message id="RS_InkColorSilver">
        <source>Silver</source>
        <translation>Silver</translation>
    </message>
    <message id="RS_STitle_TapeWidth">
        <source>Tape Width</source>
        <translation>Tape Width</translation>
    </message>
    <message id="RS_STitle_TapeLength">
        <source>Tape Length</source>
        <translation>Tape Length</translation>
    </message>
    <message id="RS_STitle_Margin">
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message id="RS_STitle_Quality">
        <source>Print Quality</source>
        <translation>Print Quality</translation>
    </message>
    <message id="RS_STitle_PrintTapeLength">
        <source>Print Tape Length</source>
        <translation>Print Tape Length</translation>
    </message>
    <message id="RS_STitle_TapeType">
        <source>Tape Material</source>
        <translation>Tape Material</translation>
    </message>
    <message id="RS_STitle_TapeColor">
        <source>Tape Colour</source>
        <translation>Tape Colour</translation>
    </message>
    <message id="RS_STitle_InkColor">
        <source>Ink Colour</source>
        <translation>Ink Colour</translation>
    </message>
    <message id="RS_STitle_Resolution">
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message id="RS_STitle_Compress">
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message id="RS_Alrt_LengthMin">
        <source>The tape length is shorter than the printer allows. The shortest allowed length is used instead.</source>
        <translation>The tape length is shorter than the printer allows. The shortest allowed length is used instead.</translation>
    </message>
    <message id="RS_Alrt_LengthMax">
        <source>The tape length is longer than the printer allows. The longest allowed length is used instead.</source>
        <translation>The tape length is longer than the printer allows. The longest allowed length is used instead.</translation>
    </message>
    <message id="RS_Alrt_TapeLengthMin">
        <source>The print tape length is shorter than the printer allows. The shortest allowed length is used instead.</source>
        <translation>The print tape length is shorter than the printer allows. The shortest allowed length is used instead.</translation>
    </message>
    <message id="RS_Alrt_TapeLengthMax">
        <source>The print tape length is longer than this tape allows. The longest allowed length is used instead.</source>
        <translation>The print tape length is longer than this tape allows. The longest allowed length is used instead.</translation>
    </message>
    <message id="RS_Alrt_LengthByMargin">
        <source>The margin is more than half of the tape length and leaves no room to print. The tape is made longer to fit both margins.</source>
        <translation>The margin is more than half of the tape length and leaves no room to print. The tape is made longer to fit both margins.</translation>
    </message>
    <message id="Tape Length : ">
        <source>Tape Length:</source>
        <translation>Tape Length:</translation>
    </message>
    <message id="Tape Length">
        <source>Tape Length</source>
        <translation>Tape Length</translation>
    </message>
    <message id="Margin : ">
        <source>Margin:</source>
        <translation>Margin:</translation>
    </message>
    <message id="Margin">
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message id="Print Tape Length : ">
        <source>Print Tape Length:</source>
        <translation>Print Tape Length:</translation>
    </message>
    <message id="Print Tape Length">
        <source>Print Tape Length</source>
        <translation>Print Tape Length</translation>
    </message>
    <message id="Print Quality : ">
        <source>Print Quality:</source>
        <translation>Print Quality:</translation>
    </message>
    <message id="Print Quality">
        <source>Print Quality</source>
        <translation>Print Quality</translation>
    </message>
    <message id="Resolution : ">
        <source>Resolution:</source>
        <translation>Resolution:</translation>
    </message>
    <message id="Resolution">
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message id="Compression : ">
        <source>Compression:</source>
        <translation>Compression:</translation>
    </message>
    <message id="Compression">
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message id="Print Mode : ">
        <source>Print Mode:</source>
        <translation>Print Mode:</translation>
    </message>
    <message id="Print Mode">
        <source>Print Mode</source>
        <translation>Print Mode</translation>
    </message>
    <message id="Tape Material : ">
        <source>Tape Material:</source>
        <translation>Tape Material:</translation>
    </message>
    <message id="Tape Material">
        <source>Tape Material</source>
        <translation>Tape Material</translation>
    </message>
    <message id="Tape Colour : ">
        <source>Tape Colour:</source>
        <translation>Tape Colour:</translation>
    </message>
    <message id="Tape Colour">
        <source>Tape Colour</source>
        <translation>Tape Colour</translation>
    </message>
    <message id="Ink Colour : ">
        <source>Ink Colour:</source>
        <translation>Ink Colour:</translation>
    </message>
    <message id="Ink Colour">
        <source>Ink Colour</source>
        <translation>Ink Colour</translation>
    </message>
    <message id="Speed">
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>On</translation>
    </message>
    <message id="300 x 300 dpi">
        <source>300 × 300 dpi</source>
        <translation>300 × 300 dpi</translation>
    </message>
    <message id="300 x 600 dpi">
        <source>300 × 600 dpi</source>
        <translation>300 × 600 dpi</translation>
    </message>
    <message id="600 x 600 dpi">
        <source>600 × 600 dpi</source>
        <translation>600 × 600 dpi</translation>
    </message>
    <message id="180 x 180 dpi">
        <source>180 × 180 dpi</source>
        <translation>180 × 180 dpi</translation>
    </message>
    <message id="180 x 360 dpi">
        <source>180 × 360 dpi</source>
        <translation>180 × 360 dpi</translation>
    </message>
    <message id="360 x 360 dpi">
        <source>360 × 360 dpi</source>
        <translation>360 × 360 dpi</translation>
    </message>
    <message id="Speed (300 x 300 dpi)">
        <source>Speed (300×300 dpi)</source>
        <translation>Speed (300×300 dpi)</translation>
    </message>
    <message id="Quality (300 x 300 dpi)">
        <source>Quality (300×300 dpi)</source>
        <translation>Quality (300×300 dpi)</translation>
    </message>
    <message id="Quality (300 x 600 dpi)">
        <source>Quality (300×600 dpi)</source>
        <translation>Quality (300×600 dpi)</translation>
    </message>
    <message id="Film (OPP)">
        <source>Film (OPP)</source>
        <translation>Film (OPP)</translation>
    </message>
    <message id="Polyester (PET)">
        <source>Polyester (PET)</source>
        <translation>Polyester (PET)</translation>
    </message>
    <message id="Cloth">
        <source>Cloth</source>
        <translation>Cloth</translation>
    </message>
    <message id="White">
        <source>White</source>
        <translation>White</translation>
    </message>
    <message id="Black">
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message id="Blue">
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message id="Red">
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message id="Yellow">
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message id="Pink">
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message id="Pastel Blue">
        <source>Pastel Blue</source>
        <translation>Pastel Blue</translation>
    </message>
    <message id="Pastel Red">
        <source>Pastel Red</source>
        <translation>Pastel Red</translation>
    </message>
    <message id="Deep Blue">
        <source>Deep Blue</source>
        <translation>Deep Blue</translation>
    </message>
    <message id="Gold">
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message id="Silver">
        <source>Silver</source>
        <translation>Silver</translation>
    </message>
    <message id="4 mm">
        <source>4 mm</source>
        <translation>4 mm</translation>
    </message>
    <message id="6 mm">
        <source>6 mm</source>
        <translation>6 mm</translation>
    </message>
    <message id="9 mm">
        <source>9 mm</source>
        <translation>9 mm</translation>
    </message>
    <message id="12 mm">
        <source>12 mm</source>
        <translation>12 mm</translation>
    </message>
    <message id="15 mm">
        <source>15 mm</source>
        <translation>15 mm</translation>
    </message>
    <message id="18 mm">
        <source>18 mm</source>
        <translation>18 mm</translation>
    </message>
    <message id="24 mm">
        <source>24 mm</source>
        <translation>24 mm</translation>
    </message>
    <message id="36 mm">
        <source>36 mm</source>
        <translation>36 mm</translation>
    </message>
    <message id="Die-cut label 24 x 80 mm">
        <source>Die-cut label 24 × 80 mm</source>
        <translation>Die-cut label 24 × 80 mm</translation>
    </message>
    <message id="Address label 36 x 100 mm">
        <source>Address label 36 × 100 mm</source>
        <translation>Address label 36 × 100 mm</translation>
    </message>
    <message id="File label 12 x 45 mm">
        <source>File label 12 × 45 mm</source>
        <translation>File label 12 × 45 mm</translation>
    </message>
    <message id="Custom">
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
</context>
</TS>

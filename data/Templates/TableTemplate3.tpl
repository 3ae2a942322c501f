<!-- Calendar: one month, a week to a row -->
<TABLE BORDER=1 CELLPADDING=4 CELLSPACING=0>
<CAPTION ALIGN=top><B>Month Year</B></CAPTION>
<TR>
	<TH>Sun</TH>
	<TH>Mon</TH>
	<TH>Tue</TH>
	<TH>Wed</TH>
	<TH>Thu</TH>
	<TH>Fri</TH>
	<TH>Sat</TH>

</TR>
<TR>
	<TD ALIGN=right VALIGN=top HEIGHT=50>1</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>2</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>3</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>4</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>5</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>6</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>7</TD>

</TR>
<TR>
	<TD ALIGN=right VALIGN=top HEIGHT=50>8</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>9</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>10</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>11</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>12</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>13</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>14</TD>

</TR>
<TR>
	<TD ALIGN=right VALIGN=top HEIGHT=50>15</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>16</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>17</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>18</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>19</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>20</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>21</TD>

</TR>
<TR>
	<TD ALIGN=right VALIGN=top HEIGHT=50>22</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>23</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>24</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>25</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>26</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>27</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>28</TD>

</TR>
<TR>
	<TD ALIGN=right VALIGN=top HEIGHT=50>29</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>30</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>31</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>&nbsp;</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>&nbsp;</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>&nbsp;</TD>
	<TD ALIGN=right VALIGN=top HEIGHT=50>&nbsp;</TD>

</TR>
</TABLE>

#include "ui/info/InfoTexts.h"

#include "ui/info/InfoScreen.h"

#include <array>

namespace vorlex::ui {

namespace {

struct InformationText {
  const char* formName;
  const char* title;
  const char* heading;
  const char* html;
};

// The texts are written for a student of entomology who has reared a
// cohort, not for a demographer: every symbol is said in words where it
// first appears. Formulas are plain HTML (entities, <sub>, <sup>), which
// the text browser draws without any further support. The only works
// cited are those of the References screen, in the form "Author (year)".

constexpr const char* kIntroductionI1 = R"html(
<h3>Why age and stage</h3>
<p>Individuals of one insect or mite cohort do not develop at the same rate.
Eggs laid on the same day hatch, pupate and emerge over several days, so
individuals of one age can be in different stages and individuals of one
stage can differ in age. This <b>stage overlap</b> is lost
in a table by age alone, which lumps all individuals of age <i>x</i>, and in a
table by stage alone, which ignores age within a stage. The age-stage life
table keeps both: every individual is counted by its age <i>x</i> (in days,
from the egg) and its stage <i>j</i>.</p>

<h3>Both sexes</h3>
<p>A female-only life table follows the females and leaves the males out;
individuals that die before their sex can be told are hard to place in it.
The two-sex table follows every egg of the cohort, whatever its fate: the
males are counted as a stage of their own, the individuals that die as
immatures stay in the table, and the share of eggs that become females is
taken from the cohort instead of being assumed.</p>

<h3>The data</h3>
<p>The data come from a cohort of eggs laid within a short time and reared
individually, one per cage, vial or leaf disc. Every day each individual is
checked and its stage, its death and, for an adult female, the number of
eggs she laid are recorded. From these records:</p>
<ul>
<li><i>s<sub>xj</sub></i>, the <b>age-stage survival rate</b>: the
probability that a newborn egg survives to age <i>x</i> and is then in
stage <i>j</i>. For a cohort of <i>N</i> eggs it is the number of
individuals of age <i>x</i> in stage <i>j</i> divided by <i>N</i>.</li>
<li><i>f<sub>xj</sub></i>, the <b>age-stage fecundity</b>: the mean number
of eggs a female of age <i>x</i> in stage <i>j</i> lays that day. It is 0
for every stage but the adult female.</li>
<li><i>l<sub>x</sub></i> = &sum;<sub><i>j</i></sub> <i>s<sub>xj</sub></i>,
the <b>age-specific survival rate</b>: the probability that a newborn egg
survives to age <i>x</i>, whatever its stage.</li>
<li><i>m<sub>x</sub></i> = &sum;<sub><i>j</i></sub>
<i>s<sub>xj</sub> f<sub>xj</sub></i> / &sum;<sub><i>j</i></sub>
<i>s<sub>xj</sub></i>, the <b>age-specific fecundity</b>: the mean number of
eggs per individual of age <i>x</i>, males and immatures included.</li>
</ul>
<p>Because males and immatures are counted in its denominator, <i>m<sub>x</sub></i>
is the fecundity of all survivors of age <i>x</i>, not of the females alone.
The product <i>l<sub>x</sub> m<sub>x</sub></i> =
&sum;<sub><i>j</i></sub> <i>s<sub>xj</sub> f<sub>xj</sub></i> is what the
population parameters of I2 are made of. Carey (1993)
treats insect life tables at length. The life-table analysis program Quorat
works these rates out from the daily records and writes them into the data
file that Vorlex reads.</p>
)html";

constexpr const char* kIntroductionI2 = R"html(
<p>Four numbers sum up how fast a population with a given life table can
grow, with unlimited food and space in a constant environment. With ages
counted in days, <i>r</i> and &lambda; are rates per day and <i>T</i> is in
days.</p>

<h3>Net reproductive rate <i>R</i><sub>0</sub></h3>
<p><i>R</i><sub>0</sub> = &sum;<sub><i>x</i></sub> <i>l<sub>x</sub> m<sub>x</sub></i>:
the mean number of offspring an individual produces in its whole life,
averaged over all the eggs of the cohort, males and individuals that died
young included.
<i>R</i><sub>0</sub> &gt; 1 means each generation is larger than the one
before.</p>
<p>In the two-sex table <i>R</i><sub>0</sub> = <i>F</i> &times;
<i>N<sub>f</sub></i> / <i>N</i>, where <i>F</i> is the mean fecundity (eggs per
adult female), <i>N</i> the number of eggs at the start of the cohort and
<i>N<sub>f</sub></i> the number of female adults that emerged from them. A
cohort of 100 eggs giving 40 females that lay 250 eggs each on average has
<i>R</i><sub>0</sub> = 250 &times; 40 / 100 = 100.</p>

<h3>Intrinsic rate of increase <i>r</i></h3>
<p>Birch (1948) made <i>r</i> the measure of an insect's potential to
increase: the rate at which a population grows once its age-stage
distribution has become stable. It is the root of the Euler&ndash;Lotka
equation, with age <i>x</i> counted from 0:</p>
<p align="center">&sum;<sub><i>x</i>=0</sub> <i>e</i><sup>&minus;<i>r</i>(<i>x</i>+1)</sup>
<i>l<sub>x</sub> m<sub>x</sub></i> = 1</p>
<p>found by trying values of <i>r</i> until the sum equals 1. Its unit is per
day. <i>r</i> &gt; 0: the population grows; <i>r</i> = 0: it keeps its size;
<i>r</i> &lt; 0: it declines. <i>r</i> has the same sign as
ln <i>R</i><sub>0</sub>, so <i>r</i> &gt; 0 exactly when
<i>R</i><sub>0</sub> &gt; 1.</p>

<h3>Finite rate of increase &lambda;</h3>
<p>&lambda; = <i>e<sup>r</sup></i>: the factor by which the population
multiplies each day once the distribution is stable. With <i>r</i> = 0.2 per
day, &lambda; = 1.221: the population grows by 22.1&nbsp;% a day, not by the
20&nbsp;% that 1 + <i>r</i> would suggest. &lambda; &gt; 1 means growth,
&lambda; &lt; 1 decline.</p>

<h3>Mean generation time <i>T</i></h3>
<p><i>T</i> = ln <i>R</i><sub>0</sub> / <i>r</i>: the time, in days, a
population growing at the rate <i>r</i> needs to increase
<i>R</i><sub>0</sub>-fold, since <i>e</i><sup><i>rT</i></sup> =
&lambda;<sup><i>T</i></sup> = <i>R</i><sub>0</sub>.</p>

<p>The data file holds <i>F</i>, <i>R</i><sub>0</sub>, <i>r</i>, &lambda;
and <i>T</i> as Quorat computed them; the main form shows them after the
file is opened.</p>
)html";

constexpr const char* kIntroductionI3 = R"html(
<h3>The population as a matrix</h3>
<p>On day <i>t</i> the population is a table <i>n<sub>xj</sub></i>(<i>t</i>):
the number of individuals of age <i>x</i> in stage <i>j</i>. Its total is
<i>N</i>(<i>t</i>) = &sum;<sub><i>x</i></sub> &sum;<sub><i>j</i></sub>
<i>n<sub>xj</sub></i>(<i>t</i>). Leslie (1945) projected a population
classified by age with a matrix; the age-stage table carries the same idea to
stages, as the stage-classified models of Caswell (2001) do. The projection
starts from the initial population given in the data file.</p>

<h3>One day</h3>
<p>From the cohort, each age <i>x</i> and stage <i>j</i> has
<i>g<sub>xj</sub></i>, the probability that an individual survives one day and
stays in stage <i>j</i>, and <i>d<sub>xj</sub></i>, the probability that it
survives and moves to the next stage. Each day:</p>
<ul>
<li><b>stay</b>: <i>g<sub>xj</sub> n<sub>xj</sub></i>(<i>t</i>) individuals
become <i>n</i><sub><i>x</i>+1,<i>j</i></sub>(<i>t</i>+1), one day older in the
same stage;</li>
<li><b>develop</b>: <i>d</i><sub><i>x</i>,<i>j</i>&minus;1</sub>
<i>n</i><sub><i>x</i>,<i>j</i>&minus;1</sub>(<i>t</i>) individuals enter
stage <i>j</i> at age <i>x</i>+1; the last immature stage emerges into
females and males at the rates the cohort showed;</li>
<li><b>die</b>: the share 1 &minus; <i>g<sub>xj</sub></i> &minus;
<i>d<sub>xj</sub></i> is lost;</li>
<li><b>reproduce</b>: the females lay the eggs of the next day,
<i>n</i><sub>0,1</sub>(<i>t</i>+1) = &sum;<sub><i>x</i></sub>
&sum;<sub><i>j</i></sub> <i>f<sub>xj</sub> n<sub>xj</sub></i>(<i>t</i>).</li>
</ul>

<h3>What the projection shows</h3>
<ul>
<li><b>Stage overlap.</b> Development rates vary among individuals, so the
curves of successive stages overlap: larvae are still present when the first
adults appear.</li>
<li><b>Generations.</b> A start from one cohort gives waves of eggs, larvae,
pupae and adults, one per generation. The waves flatten as the variable
development spreads the generations out.</li>
<li><b>Time to reach a size.</b> The day on which the total passes a given
number tells how long a colony takes to build up or an infestation to become
a problem.</li>
<li><b>Stable age-stage distribution.</b> After some generations the share
of each age-stage cell settles to fixed values, whatever the start. From then
on the total and every stage grow by the factor &lambda; a day, and the daily
growth rate of each stage, ln <i>n<sub>j</sub></i>(<i>t</i>+1) &minus;
ln <i>n<sub>j</sub></i>(<i>t</i>), converges to <i>r</i>.</li>
</ul>
<p>This is the link between the life table and its parameters: projected with
its own survival, development and fecundity rates, a population reaches the
<i>r</i> and &lambda; of the Euler&ndash;Lotka equation (I2).</p>
)html";

constexpr const char* kIntroductionI4 = R"html(
<h3>The steps of the main form</h3>
<ol>
<li>Enter the simulation time, the number of days to project.</li>
<li>Open the data file made by the life-table analysis program Quorat from
your cohort; the main form shows its <i>F</i>, <i>R</i><sub>0</sub>,
<i>r</i>, &lambda; and <i>T</i>.</li>
<li>Choose a management strategy.</li>
<li>Click "Run simulation".</li>
</ol>

<h3>Strategies</h3>
<ul>
<li><b>No control</b>: growth with the life-table rates alone.</li>
<li><b>Control based on a predefined schedule</b>: controls on the days the
data file lists, each killing a share of every stage on each day it is
effective.</li>
<li><b>Automatic control based on ET</b>: a control is applied whenever the
weighted size <i>W</i>(<i>t</i>) = &sum; <i>w<sub>xj</sub>
n<sub>xj</sub></i>(<i>t</i>), each stage weighted by the damage it does,
reaches the economic threshold <i>ET</i>(<i>t</i>), which may change with
the season or the crop.</li>
<li><b>Stage harvesting</b>: for mass rearing, a share of a stage is taken
at intervals, showing what a colony yields while it keeps going.</li>
<li><b>Growth under predation</b>: a run of a predator, whose data file
holds its consumption rates, writes the daily predation of its growing
population to a file; a run of the prey reads that file and loses that
predation day by day.</li>
<li><b>Extra mortality</b>: losses the life table does not hold, such as
overwintering mortality of one stage, extra mortality of a stage over some
days and a lowered fecundity.</li>
<li><b>Unlimited growth</b>: a long run without control that shows the
population settling to its stable age-stage distribution and growing by
&lambda; a day.</li>
</ul>
<p>A <b>carrying capacity</b> <i>K</i>(<i>t</i>) can limit a run: a
density-dependent mortality, scaled for each stage by coefficients in the
data file, rises as the weighted size approaches and passes
<i>K</i>(<i>t</i>).</p>

<h3>Control efficacy</h3>
<p>The mortality a control causes is given for each stage and effective day
as a <b>corrected mortality</b>, the share killed by the control itself:
natural deaths are already in the life table. From a trial it is computed
with the formula of Abbott (1925), (1 &minus; <i>S<sub>T</sub></i> /
<i>S<sub>C</sub></i>) &times; 100&nbsp;%, with <i>S<sub>T</sub></i> and
<i>S<sub>C</sub></i> the shares surviving in the treated and the untreated
group; when the two groups start from different numbers, with the formula of
Henderson &amp; Tilton (1955), (1 &minus; <i>C<sub>b</sub> T<sub>a</sub></i>
/ (<i>C<sub>a</sub> T<sub>b</sub></i>)) &times; 100&nbsp;%, with
<i>C</i> and <i>T</i> the numbers alive in the untreated and the treated
group before (<i>b</i>) and after (<i>a</i>) treatment.</p>

<h3>Outputs</h3>
<p>Beside the data file, named after it: the <b>report</b>
(&hellip;_0_output.txt) with the life table, the age-stage tables and
character plots of the curves; comma-separated <b>figure files</b> of stage
sizes, totals, growth rates and deaths for your own graphs; <b>derived data
files</b> that start a further run from the population of the last day; and
the <b>charts</b> of the main form and the large-graph window.</p>
)html";

constexpr const char* kReferences = R"html(
<p>The works the report and the introductions cite.</p>
<p style="margin-left:28px; text-indent:-28px">Leslie P.H. (1945) On the use
of matrices in certain population mathematics. <i>Biometrika</i> 33:
183-212.</p>
<p style="margin-left:28px; text-indent:-28px">Birch L.C. (1948) The
intrinsic rate of natural increase of an insect population. <i>Journal of
Animal Ecology</i> 17: 15-26.</p>
<p style="margin-left:28px; text-indent:-28px">Caswell H. (2001) <i>Matrix
Population Models: Construction, Analysis, and Interpretation</i>, 2nd ed.
Sinauer Associates, Sunderland, MA.</p>
<p style="margin-left:28px; text-indent:-28px">Carey J.R. (1993) <i>Applied
Demography for Biologists with Special Emphasis on Insects</i>. Oxford
University Press, New York.</p>
<p style="margin-left:28px; text-indent:-28px">Abbott W.S. (1925) A method
of computing the effectiveness of an insecticide. <i>Journal of Economic
Entomology</i> 18: 265-267.</p>
<p style="margin-left:28px; text-indent:-28px">Henderson C.F. &amp; Tilton
E.W. (1955) Tests with acaricides against the brown wheat mite. <i>Journal of
Economic Entomology</i> 48: 157-161.</p>
)html";

constexpr const char* kHowToPrint = R"html(
<h3>The main form</h3>
<p>The button "Print this form" prints the main form as a picture, as it
stands on the screen with its numbers and chart, through the print dialog.
Choose a printer there, or "Print to File (PDF)" to keep the picture as a PDF
file.</p>

<h3>Charts</h3>
<p>The large-graph window has its own Print button for the charts it shows.
A right click on any chart opens its menu: save the chart as a PNG picture or
as an SVG drawing (which stays sharp at any size), or copy its data as
comma-separated text to paste into a spreadsheet.</p>

<h3>The report</h3>
<p>The report lies beside the data file; its name ends with
"_0_output.txt". It is plain text, with a form feed between pages and lines
of at most 82 characters. Open it in a text editor and print it with a
fixed-width font such as Courier 10&nbsp;pt, so that the columns and the
character plots stay aligned; a proportional font spoils them. At 10&nbsp;pt
a line of 82 characters is about 17.4&nbsp;cm wide, so it fits on A4 or
Letter paper with left and right margins of up to 1.8&nbsp;cm. An editor that
honours form feeds starts each report page on a new sheet.</p>

<h3>Figure files</h3>
<p>The figure files are comma-separated text: a title line, a line of column
headings, then the rows of numbers. Open them in a spreadsheet to draw and
print your own graphs.</p>
)html";

constexpr std::array<InformationText, 6> kTexts = {{
    {"Introfrm", "Introduction I1", "The age-stage, two-sex life table", kIntroductionI1},
    {"Intro1", "Introduction I2", "Population parameters: R\u2080, r, \u03bb and T", kIntroductionI2},
    {"Intro2", "Introduction I3", "From the life table to a projection", kIntroductionI3},
    {"Intro0", "Introduction I4", "What the simulation does with your data", kIntroductionI4},
    {"Referenc", "References", "References", kReferences},
    {"HowToPrint", "How to print", "How to print", kHowToPrint},
}};

} // namespace

InfoScreen* makeInformationScreen(const QString& formName, QWidget* parent) {
  for (const InformationText& text : kTexts) {
    if (formName != QLatin1String(text.formName))
      continue;
    auto* screen = new InfoScreen(QString::fromUtf8(text.title), QString::fromUtf8(text.heading),
                                  QString::fromUtf8(text.html), parent);
    screen->setObjectName(formName);
    return screen;
  }
  return nullptr;
}

} // namespace vorlex::ui

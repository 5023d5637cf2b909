// Made by scripts/generate-named-references. Not to be edited.
// clang-format off
#pragma once

#include <cstdint>

namespace brindle::html {

/// One name of the table, as places in the two texts below.
struct NamedReferenceEntry {
    std::uint16_t nameOffset;
    std::uint16_t valueOffset;
    std::uint8_t nameLength;
    std::uint8_t valueLength;
};

inline constexpr char namedReferenceNames[] =
    "AEligAElig;AMPAMP;AacuteAacute;Abreve;AcircAcirc;Acy;Afr;AgraveAgrave;Alpha;Amacr;And;Aogon;Aopf;ApplyFunction;Aring"
    "Aring;Ascr;Assign;AtildeAtilde;AumlAuml;Backslash;Barv;Barwed;Bcy;Because;Bernoullis;Beta;Bfr;Bopf;Breve;Bscr;Bumpeq;"
    "CHcy;COPYCOPY;Cacute;Cap;CapitalDifferentialD;Cayleys;Ccaron;CcedilCcedil;Ccirc;Cconint;Cdot;Cedilla;CenterDot;Cfr;Chi;"
    "CircleDot;CircleMinus;CirclePlus;CircleTimes;ClockwiseContourIntegral;CloseCurlyDoubleQuote;CloseCurlyQuote;Colon;"
    "Colone;Congruent;Conint;ContourIntegral;Copf;Coproduct;CounterClockwiseContourIntegral;Cross;Cscr;Cup;CupCap;DD;"
    "DDotrahd;DJcy;DScy;DZcy;Dagger;Darr;Dashv;Dcaron;Dcy;Del;Delta;Dfr;DiacriticalAcute;DiacriticalDot;"
    "DiacriticalDoubleAcute;DiacriticalGrave;DiacriticalTilde;Diamond;DifferentialD;Dopf;Dot;DotDot;DotEqual;"
    "DoubleContourIntegral;DoubleDot;DoubleDownArrow;DoubleLeftArrow;DoubleLeftRightArrow;DoubleLeftTee;DoubleLongLeftArrow;"
    "DoubleLongLeftRightArrow;DoubleLongRightArrow;DoubleRightArrow;DoubleRightTee;DoubleUpArrow;DoubleUpDownArrow;"
    "DoubleVerticalBar;DownArrow;DownArrowBar;DownArrowUpArrow;DownBreve;DownLeftRightVector;DownLeftTeeVector;"
    "DownLeftVector;DownLeftVectorBar;DownRightTeeVector;DownRightVector;DownRightVectorBar;DownTee;DownTeeArrow;Downarrow;"
    "Dscr;Dstrok;ENG;ETHETH;EacuteEacute;Ecaron;EcircEcirc;Ecy;Edot;Efr;EgraveEgrave;Element;Emacr;EmptySmallSquare;"
    "EmptyVerySmallSquare;Eogon;Eopf;Epsilon;Equal;EqualTilde;Equilibrium;Escr;Esim;Eta;EumlEuml;Exists;ExponentialE;Fcy;Ffr;"
    "FilledSmallSquare;FilledVerySmallSquare;Fopf;ForAll;Fouriertrf;Fscr;GJcy;GTGT;Gamma;Gammad;Gbreve;Gcedil;Gcirc;Gcy;Gdot;"
    "Gfr;Gg;Gopf;GreaterEqual;GreaterEqualLess;GreaterFullEqual;GreaterGreater;GreaterLess;GreaterSlantEqual;GreaterTilde;"
    "Gscr;Gt;HARDcy;Hacek;Hat;Hcirc;Hfr;HilbertSpace;Hopf;HorizontalLine;Hscr;Hstrok;HumpDownHump;HumpEqual;IEcy;IJlig;IOcy;"
    "IacuteIacute;IcircIcirc;Icy;Idot;Ifr;IgraveIgrave;Im;Imacr;ImaginaryI;Implies;Int;Integral;Intersection;InvisibleComma;"
    "InvisibleTimes;Iogon;Iopf;Iota;Iscr;Itilde;Iukcy;IumlIuml;Jcirc;Jcy;Jfr;Jopf;Jscr;Jsercy;Jukcy;KHcy;KJcy;Kappa;Kcedil;"
    "Kcy;Kfr;Kopf;Kscr;LJcy;LTLT;Lacute;Lambda;Lang;Laplacetrf;Larr;Lcaron;Lcedil;Lcy;LeftAngleBracket;LeftArrow;"
    "LeftArrowBar;LeftArrowRightArrow;LeftCeiling;LeftDoubleBracket;LeftDownTeeVector;LeftDownVector;LeftDownVectorBar;"
    "LeftFloor;LeftRightArrow;LeftRightVector;LeftTee;LeftTeeArrow;LeftTeeVector;LeftTriangle;LeftTriangleBar;"
    "LeftTriangleEqual;LeftUpDownVector;LeftUpTeeVector;LeftUpVector;LeftUpVectorBar;LeftVector;LeftVectorBar;Leftarrow;"
    "Leftrightarrow;LessEqualGreater;LessFullEqual;LessGreater;LessLess;LessSlantEqual;LessTilde;Lfr;Ll;Lleftarrow;Lmidot;"
    "LongLeftArrow;LongLeftRightArrow;LongRightArrow;Longleftarrow;Longleftrightarrow;Longrightarrow;Lopf;LowerLeftArrow;"
    "LowerRightArrow;Lscr;Lsh;Lstrok;Lt;Map;Mcy;MediumSpace;Mellintrf;Mfr;MinusPlus;Mopf;Mscr;Mu;NJcy;Nacute;Ncaron;Ncedil;"
    "Ncy;NegativeMediumSpace;NegativeThickSpace;NegativeThinSpace;NegativeVeryThinSpace;NestedGreaterGreater;NestedLessLess;"
    "NewLine;Nfr;NoBreak;NonBreakingSpace;Nopf;Not;NotCongruent;NotCupCap;NotDoubleVerticalBar;NotElement;NotEqual;"
    "NotEqualTilde;NotExists;NotGreater;NotGreaterEqual;NotGreaterFullEqual;NotGreaterGreater;NotGreaterLess;"
    "NotGreaterSlantEqual;NotGreaterTilde;NotHumpDownHump;NotHumpEqual;NotLeftTriangle;NotLeftTriangleBar;"
    "NotLeftTriangleEqual;NotLess;NotLessEqual;NotLessGreater;NotLessLess;NotLessSlantEqual;NotLessTilde;"
    "NotNestedGreaterGreater;NotNestedLessLess;NotPrecedes;NotPrecedesEqual;NotPrecedesSlantEqual;NotReverseElement;"
    "NotRightTriangle;NotRightTriangleBar;NotRightTriangleEqual;NotSquareSubset;NotSquareSubsetEqual;NotSquareSuperset;"
    "NotSquareSupersetEqual;NotSubset;NotSubsetEqual;NotSucceeds;NotSucceedsEqual;NotSucceedsSlantEqual;NotSucceedsTilde;"
    "NotSuperset;NotSupersetEqual;NotTilde;NotTildeEqual;NotTildeFullEqual;NotTildeTilde;NotVerticalBar;Nscr;NtildeNtilde;Nu;"
    "OElig;OacuteOacute;OcircOcirc;Ocy;Odblac;Ofr;OgraveOgrave;Omacr;Omega;Omicron;Oopf;OpenCurlyDoubleQuote;OpenCurlyQuote;"
    "Or;Oscr;OslashOslash;OtildeOtilde;Otimes;OumlOuml;OverBar;OverBrace;OverBracket;OverParenthesis;PartialD;Pcy;Pfr;Phi;Pi;"
    "PlusMinus;Poincareplane;Popf;Pr;Precedes;PrecedesEqual;PrecedesSlantEqual;PrecedesTilde;Prime;Product;Proportion;"
    "Proportional;Pscr;Psi;QUOTQUOT;Qfr;Qopf;Qscr;RBarr;REGREG;Racute;Rang;Rarr;Rarrtl;Rcaron;Rcedil;Rcy;Re;ReverseElement;"
    "ReverseEquilibrium;ReverseUpEquilibrium;Rfr;Rho;RightAngleBracket;RightArrow;RightArrowBar;RightArrowLeftArrow;"
    "RightCeiling;RightDoubleBracket;RightDownTeeVector;RightDownVector;RightDownVectorBar;RightFloor;RightTee;RightTeeArrow;"
    "RightTeeVector;RightTriangle;RightTriangleBar;RightTriangleEqual;RightUpDownVector;RightUpTeeVector;RightUpVector;"
    "RightUpVectorBar;RightVector;RightVectorBar;Rightarrow;Ropf;RoundImplies;Rrightarrow;Rscr;Rsh;RuleDelayed;SHCHcy;SHcy;"
    "SOFTcy;Sacute;Sc;Scaron;Scedil;Scirc;Scy;Sfr;ShortDownArrow;ShortLeftArrow;ShortRightArrow;ShortUpArrow;Sigma;"
    "SmallCircle;Sopf;Sqrt;Square;SquareIntersection;SquareSubset;SquareSubsetEqual;SquareSuperset;SquareSupersetEqual;"
    "SquareUnion;Sscr;Star;Sub;Subset;SubsetEqual;Succeeds;SucceedsEqual;SucceedsSlantEqual;SucceedsTilde;SuchThat;Sum;Sup;"
    "Superset;SupersetEqual;Supset;THORNTHORN;TRADE;TSHcy;TScy;Tab;Tau;Tcaron;Tcedil;Tcy;Tfr;Therefore;Theta;ThickSpace;"
    "ThinSpace;Tilde;TildeEqual;TildeFullEqual;TildeTilde;Topf;TripleDot;Tscr;Tstrok;UacuteUacute;Uarr;Uarrocir;Ubrcy;Ubreve;"
    "UcircUcirc;Ucy;Udblac;Ufr;UgraveUgrave;Umacr;UnderBar;UnderBrace;UnderBracket;UnderParenthesis;Union;UnionPlus;Uogon;"
    "Uopf;UpArrow;UpArrowBar;UpArrowDownArrow;UpDownArrow;UpEquilibrium;UpTee;UpTeeArrow;Uparrow;Updownarrow;UpperLeftArrow;"
    "UpperRightArrow;Upsi;Upsilon;Uring;Uscr;Utilde;UumlUuml;VDash;Vbar;Vcy;Vdash;Vdashl;Vee;Verbar;Vert;VerticalBar;"
    "VerticalLine;VerticalSeparator;VerticalTilde;VeryThinSpace;Vfr;Vopf;Vscr;Vvdash;Wcirc;Wedge;Wfr;Wopf;Wscr;Xfr;Xi;Xopf;"
    "Xscr;YAcy;YIcy;YUcy;YacuteYacute;Ycirc;Ycy;Yfr;Yopf;Yscr;Yuml;ZHcy;Zacute;Zcaron;Zcy;Zdot;ZeroWidthSpace;Zeta;Zfr;Zopf;"
    "Zscr;aacuteaacute;abreve;ac;acE;acd;acircacirc;acuteacute;acy;aeligaelig;af;afr;agraveagrave;alefsym;aleph;alpha;amacr;"
    "amalg;ampamp;and;andand;andd;andslope;andv;ang;ange;angle;angmsd;angmsdaa;angmsdab;angmsdac;angmsdad;angmsdae;angmsdaf;"
    "angmsdag;angmsdah;angrt;angrtvb;angrtvbd;angsph;angst;angzarr;aogon;aopf;ap;apE;apacir;ape;apid;apos;approx;approxeq;"
    "aringaring;ascr;ast;asymp;asympeq;atildeatilde;aumlauml;awconint;awint;bNot;backcong;backepsilon;backprime;backsim;"
    "backsimeq;barvee;barwed;barwedge;bbrk;bbrktbrk;bcong;bcy;bdquo;becaus;because;bemptyv;bepsi;bernou;beta;beth;between;"
    "bfr;bigcap;bigcirc;bigcup;bigodot;bigoplus;bigotimes;bigsqcup;bigstar;bigtriangledown;bigtriangleup;biguplus;bigvee;"
    "bigwedge;bkarow;blacklozenge;blacksquare;blacktriangle;blacktriangledown;blacktriangleleft;blacktriangleright;blank;"
    "blk12;blk14;blk34;block;bne;bnequiv;bnot;bopf;bot;bottom;bowtie;boxDL;boxDR;boxDl;boxDr;boxH;boxHD;boxHU;boxHd;boxHu;"
    "boxUL;boxUR;boxUl;boxUr;boxV;boxVH;boxVL;boxVR;boxVh;boxVl;boxVr;boxbox;boxdL;boxdR;boxdl;boxdr;boxh;boxhD;boxhU;boxhd;"
    "boxhu;boxminus;boxplus;boxtimes;boxuL;boxuR;boxul;boxur;boxv;boxvH;boxvL;boxvR;boxvh;boxvl;boxvr;bprime;breve;brvbar"
    "brvbar;bscr;bsemi;bsim;bsime;bsol;bsolb;bsolhsub;bull;bullet;bump;bumpE;bumpe;bumpeq;cacute;cap;capand;capbrcup;capcap;"
    "capcup;capdot;caps;caret;caron;ccaps;ccaron;ccedilccedil;ccirc;ccups;ccupssm;cdot;cedilcedil;cemptyv;centcent;centerdot;"
    "cfr;chcy;check;checkmark;chi;cir;cirE;circ;circeq;circlearrowleft;circlearrowright;circledR;circledS;circledast;"
    "circledcirc;circleddash;cire;cirfnint;cirmid;cirscir;clubs;clubsuit;colon;colone;coloneq;comma;commat;comp;compfn;"
    "complement;complexes;cong;congdot;conint;copf;coprod;copycopy;copysr;crarr;cross;cscr;csub;csube;csup;csupe;ctdot;"
    "cudarrl;cudarrr;cuepr;cuesc;cularr;cularrp;cup;cupbrcap;cupcap;cupcup;cupdot;cupor;cups;curarr;curarrm;curlyeqprec;"
    "curlyeqsucc;curlyvee;curlywedge;currencurren;curvearrowleft;curvearrowright;cuvee;cuwed;cwconint;cwint;cylcty;dArr;dHar;"
    "dagger;daleth;darr;dash;dashv;dbkarow;dblac;dcaron;dcy;dd;ddagger;ddarr;ddotseq;degdeg;delta;demptyv;dfisht;dfr;dharl;"
    "dharr;diam;diamond;diamondsuit;diams;die;digamma;disin;div;dividedivide;divideontimes;divonx;djcy;dlcorn;dlcrop;dollar;"
    "dopf;dot;doteq;doteqdot;dotminus;dotplus;dotsquare;doublebarwedge;downarrow;downdownarrows;downharpoonleft;"
    "downharpoonright;drbkarow;drcorn;drcrop;dscr;dscy;dsol;dstrok;dtdot;dtri;dtrif;duarr;duhar;dwangle;dzcy;dzigrarr;eDDot;"
    "eDot;eacuteeacute;easter;ecaron;ecir;ecircecirc;ecolon;ecy;edot;ee;efDot;efr;eg;egraveegrave;egs;egsdot;el;elinters;ell;"
    "els;elsdot;emacr;empty;emptyset;emptyv;emsp13;emsp14;emsp;eng;ensp;eogon;eopf;epar;eparsl;eplus;epsi;epsilon;epsiv;"
    "eqcirc;eqcolon;eqsim;eqslantgtr;eqslantless;equals;equest;equiv;equivDD;eqvparsl;erDot;erarr;escr;esdot;esim;eta;etheth;"
    "eumleuml;euro;excl;exist;expectation;exponentiale;fallingdotseq;fcy;female;ffilig;fflig;ffllig;ffr;filig;fjlig;flat;"
    "fllig;fltns;fnof;fopf;forall;fork;forkv;fpartint;frac12frac12;frac13;frac14frac14;frac15;frac16;frac18;frac23;frac25;"
    "frac34frac34;frac35;frac38;frac45;frac56;frac58;frac78;frasl;frown;fscr;gE;gEl;gacute;gamma;gammad;gap;gbreve;gcirc;gcy;"
    "gdot;ge;gel;geq;geqq;geqslant;ges;gescc;gesdot;gesdoto;gesdotol;gesl;gesles;gfr;gg;ggg;gimel;gjcy;gl;glE;gla;glj;gnE;"
    "gnap;gnapprox;gne;gneq;gneqq;gnsim;gopf;grave;gscr;gsim;gsime;gsiml;gtgt;gtcc;gtcir;gtdot;gtlPar;gtquest;gtrapprox;"
    "gtrarr;gtrdot;gtreqless;gtreqqless;gtrless;gtrsim;gvertneqq;gvnE;hArr;hairsp;half;hamilt;hardcy;harr;harrcir;harrw;hbar;"
    "hcirc;hearts;heartsuit;hellip;hercon;hfr;hksearow;hkswarow;hoarr;homtht;hookleftarrow;hookrightarrow;hopf;horbar;hscr;"
    "hslash;hstrok;hybull;hyphen;iacuteiacute;ic;icircicirc;icy;iecy;iexcliexcl;iff;ifr;igraveigrave;ii;iiiint;iiint;iinfin;"
    "iiota;ijlig;imacr;image;imagline;imagpart;imath;imof;imped;in;incare;infin;infintie;inodot;int;intcal;integers;intercal;"
    "intlarhk;intprod;iocy;iogon;iopf;iota;iprod;iquestiquest;iscr;isin;isinE;isindot;isins;isinsv;isinv;it;itilde;iukcy;iuml"
    "iuml;jcirc;jcy;jfr;jmath;jopf;jscr;jsercy;jukcy;kappa;kappav;kcedil;kcy;kfr;kgreen;khcy;kjcy;kopf;kscr;lAarr;lArr;"
    "lAtail;lBarr;lE;lEg;lHar;lacute;laemptyv;lagran;lambda;lang;langd;langle;lap;laquolaquo;larr;larrb;larrbfs;larrfs;"
    "larrhk;larrlp;larrpl;larrsim;larrtl;lat;latail;late;lates;lbarr;lbbrk;lbrace;lbrack;lbrke;lbrksld;lbrkslu;lcaron;lcedil;"
    "lceil;lcub;lcy;ldca;ldquo;ldquor;ldrdhar;ldrushar;ldsh;le;leftarrow;leftarrowtail;leftharpoondown;leftharpoonup;"
    "leftleftarrows;leftrightarrow;leftrightarrows;leftrightharpoons;leftrightsquigarrow;leftthreetimes;leg;leq;leqq;"
    "leqslant;les;lescc;lesdot;lesdoto;lesdotor;lesg;lesges;lessapprox;lessdot;lesseqgtr;lesseqqgtr;lessgtr;lesssim;lfisht;"
    "lfloor;lfr;lg;lgE;lhard;lharu;lharul;lhblk;ljcy;ll;llarr;llcorner;llhard;lltri;lmidot;lmoust;lmoustache;lnE;lnap;"
    "lnapprox;lne;lneq;lneqq;lnsim;loang;loarr;lobrk;longleftarrow;longleftrightarrow;longmapsto;longrightarrow;"
    "looparrowleft;looparrowright;lopar;lopf;loplus;lotimes;lowast;lowbar;loz;lozenge;lozf;lpar;lparlt;lrarr;lrcorner;lrhar;"
    "lrhard;lrm;lrtri;lsaquo;lscr;lsh;lsim;lsime;lsimg;lsqb;lsquo;lsquor;lstrok;ltlt;ltcc;ltcir;ltdot;lthree;ltimes;ltlarr;"
    "ltquest;ltrPar;ltri;ltrie;ltrif;lurdshar;luruhar;lvertneqq;lvnE;mDDot;macrmacr;male;malt;maltese;map;mapsto;mapstodown;"
    "mapstoleft;mapstoup;marker;mcomma;mcy;mdash;measuredangle;mfr;mho;micromicro;mid;midast;midcir;middotmiddot;minus;"
    "minusb;minusd;minusdu;mlcp;mldr;mnplus;models;mopf;mp;mscr;mstpos;mu;multimap;mumap;nGg;nGt;nGtv;nLeftarrow;"
    "nLeftrightarrow;nLl;nLt;nLtv;nRightarrow;nVDash;nVdash;nabla;nacute;nang;nap;napE;napid;napos;napprox;natur;natural;"
    "naturals;nbspnbsp;nbump;nbumpe;ncap;ncaron;ncedil;ncong;ncongdot;ncup;ncy;ndash;ne;neArr;nearhk;nearr;nearrow;nedot;"
    "nequiv;nesear;nesim;nexist;nexists;nfr;ngE;nge;ngeq;ngeqq;ngeqslant;nges;ngsim;ngt;ngtr;nhArr;nharr;nhpar;ni;nis;nisd;"
    "niv;njcy;nlArr;nlE;nlarr;nldr;nle;nleftarrow;nleftrightarrow;nleq;nleqq;nleqslant;nles;nless;nlsim;nlt;nltri;nltrie;"
    "nmid;nopf;notnot;notin;notinE;notindot;notinva;notinvb;notinvc;notni;notniva;notnivb;notnivc;npar;nparallel;nparsl;"
    "npart;npolint;npr;nprcue;npre;nprec;npreceq;nrArr;nrarr;nrarrc;nrarrw;nrightarrow;nrtri;nrtrie;nsc;nsccue;nsce;nscr;"
    "nshortmid;nshortparallel;nsim;nsime;nsimeq;nsmid;nspar;nsqsube;nsqsupe;nsub;nsubE;nsube;nsubset;nsubseteq;nsubseteqq;"
    "nsucc;nsucceq;nsup;nsupE;nsupe;nsupset;nsupseteq;nsupseteqq;ntgl;ntildentilde;ntlg;ntriangleleft;ntrianglelefteq;"
    "ntriangleright;ntrianglerighteq;nu;num;numero;numsp;nvDash;nvHarr;nvap;nvdash;nvge;nvgt;nvinfin;nvlArr;nvle;nvlt;"
    "nvltrie;nvrArr;nvrtrie;nvsim;nwArr;nwarhk;nwarr;nwarrow;nwnear;oS;oacuteoacute;oast;ocir;ocircocirc;ocy;odash;odblac;"
    "odiv;odot;odsold;oelig;ofcir;ofr;ogon;ograveograve;ogt;ohbar;ohm;oint;olarr;olcir;olcross;oline;olt;omacr;omega;omicron;"
    "omid;ominus;oopf;opar;operp;oplus;or;orarr;ord;order;orderof;ordfordf;ordmordm;origof;oror;orslope;orv;oscr;oslash"
    "oslash;osol;otildeotilde;otimes;otimesas;oumlouml;ovbar;par;parapara;parallel;parsim;parsl;part;pcy;percnt;period;"
    "permil;perp;pertenk;pfr;phi;phiv;phmmat;phone;pi;pitchfork;piv;planck;planckh;plankv;plus;plusacir;plusb;pluscir;plusdo;"
    "plusdu;pluse;plusmnplusmn;plussim;plustwo;pm;pointint;popf;poundpound;pr;prE;prap;prcue;pre;prec;precapprox;preccurlyeq;"
    "preceq;precnapprox;precneqq;precnsim;precsim;prime;primes;prnE;prnap;prnsim;prod;profalar;profline;profsurf;prop;propto;"
    "prsim;prurel;pscr;psi;puncsp;qfr;qint;qopf;qprime;qscr;quaternions;quatint;quest;questeq;quotquot;rAarr;rArr;rAtail;"
    "rBarr;rHar;race;racute;radic;raemptyv;rang;rangd;range;rangle;raquoraquo;rarr;rarrap;rarrb;rarrbfs;rarrc;rarrfs;rarrhk;"
    "rarrlp;rarrpl;rarrsim;rarrtl;rarrw;ratail;ratio;rationals;rbarr;rbbrk;rbrace;rbrack;rbrke;rbrksld;rbrkslu;rcaron;rcedil;"
    "rceil;rcub;rcy;rdca;rdldhar;rdquo;rdquor;rdsh;real;realine;realpart;reals;rect;regreg;rfisht;rfloor;rfr;rhard;rharu;"
    "rharul;rho;rhov;rightarrow;rightarrowtail;rightharpoondown;rightharpoonup;rightleftarrows;rightleftharpoons;"
    "rightrightarrows;rightsquigarrow;rightthreetimes;ring;risingdotseq;rlarr;rlhar;rlm;rmoust;rmoustache;rnmid;roang;roarr;"
    "robrk;ropar;ropf;roplus;rotimes;rpar;rpargt;rppolint;rrarr;rsaquo;rscr;rsh;rsqb;rsquo;rsquor;rthree;rtimes;rtri;rtrie;"
    "rtrif;rtriltri;ruluhar;rx;sacute;sbquo;sc;scE;scap;scaron;sccue;sce;scedil;scirc;scnE;scnap;scnsim;scpolint;scsim;scy;"
    "sdot;sdotb;sdote;seArr;searhk;searr;searrow;sectsect;semi;seswar;setminus;setmn;sext;sfr;sfrown;sharp;shchcy;shcy;"
    "shortmid;shortparallel;shyshy;sigma;sigmaf;sigmav;sim;simdot;sime;simeq;simg;simgE;siml;simlE;simne;simplus;simrarr;"
    "slarr;smallsetminus;smashp;smeparsl;smid;smile;smt;smte;smtes;softcy;sol;solb;solbar;sopf;spades;spadesuit;spar;sqcap;"
    "sqcaps;sqcup;sqcups;sqsub;sqsube;sqsubset;sqsubseteq;sqsup;sqsupe;sqsupset;sqsupseteq;squ;square;squarf;squf;srarr;sscr;"
    "ssetmn;ssmile;sstarf;star;starf;straightepsilon;straightphi;strns;sub;subE;subdot;sube;subedot;submult;subnE;subne;"
    "subplus;subrarr;subset;subseteq;subseteqq;subsetneq;subsetneqq;subsim;subsub;subsup;succ;succapprox;succcurlyeq;succeq;"
    "succnapprox;succneqq;succnsim;succsim;sum;sung;sup1sup1;sup2sup2;sup3sup3;sup;supE;supdot;supdsub;supe;supedot;suphsol;"
    "suphsub;suplarr;supmult;supnE;supne;supplus;supset;supseteq;supseteqq;supsetneq;supsetneqq;supsim;supsub;supsup;swArr;"
    "swarhk;swarr;swarrow;swnwar;szligszlig;target;tau;tbrk;tcaron;tcedil;tcy;tdot;telrec;tfr;there4;therefore;theta;"
    "thetasym;thetav;thickapprox;thicksim;thinsp;thkap;thksim;thornthorn;tilde;timestimes;timesb;timesbar;timesd;tint;toea;"
    "top;topbot;topcir;topf;topfork;tosa;tprime;trade;triangle;triangledown;triangleleft;trianglelefteq;triangleq;"
    "triangleright;trianglerighteq;tridot;trie;triminus;triplus;trisb;tritime;trpezium;tscr;tscy;tshcy;tstrok;twixt;"
    "twoheadleftarrow;twoheadrightarrow;uArr;uHar;uacuteuacute;uarr;ubrcy;ubreve;ucircucirc;ucy;udarr;udblac;udhar;ufisht;"
    "ufr;ugraveugrave;uharl;uharr;uhblk;ulcorn;ulcorner;ulcrop;ultri;umacr;umluml;uogon;uopf;uparrow;updownarrow;"
    "upharpoonleft;upharpoonright;uplus;upsi;upsih;upsilon;upuparrows;urcorn;urcorner;urcrop;uring;urtri;uscr;utdot;utilde;"
    "utri;utrif;uuarr;uumluuml;uwangle;vArr;vBar;vBarv;vDash;vangrt;varepsilon;varkappa;varnothing;varphi;varpi;varpropto;"
    "varr;varrho;varsigma;varsubsetneq;varsubsetneqq;varsupsetneq;varsupsetneqq;vartheta;vartriangleleft;vartriangleright;"
    "vcy;vdash;vee;veebar;veeeq;vellip;verbar;vert;vfr;vltri;vnsub;vnsup;vopf;vprop;vrtri;vscr;vsubnE;vsubne;vsupnE;vsupne;"
    "vzigzag;wcirc;wedbar;wedge;wedgeq;weierp;wfr;wopf;wp;wr;wreath;wscr;xcap;xcirc;xcup;xdtri;xfr;xhArr;xharr;xi;xlArr;"
    "xlarr;xmap;xnis;xodot;xopf;xoplus;xotime;xrArr;xrarr;xscr;xsqcup;xuplus;xutri;xvee;xwedge;yacuteyacute;yacy;ycirc;ycy;"
    "yenyen;yfr;yicy;yopf;yscr;yucy;yumlyuml;zacute;zcaron;zcy;zdot;zeetrf;zeta;zfr;zhcy;zigrarr;zopf;zscr;zwj;zwnj;";

inline constexpr char namedReferenceValues[] =
    "\011\012!\042#$%&'()*+,./:;<<\342\203\222==\342\203\245>>\342\203\222\077@[\134]^_`fj{|}\302\240\302\241\302\242\302\243"
    "\302\244\302\245\302\246\302\247\302\250\302\251\302\252\302\253\302\254\302\255\302\256\302\257\302\260\302\261\302\262"
    "\302\263\302\264\302\265\302\266\302\267\302\270\302\271\302\272\302\273\302\274\302\275\302\276\302\277\303\200\303\201"
    "\303\202\303\203\303\204\303\205\303\206\303\207\303\210\303\211\303\212\303\213\303\214\303\215\303\216\303\217\303\220"
    "\303\221\303\222\303\223\303\224\303\225\303\226\303\227\303\230\303\231\303\232\303\233\303\234\303\235\303\236\303\237"
    "\303\240\303\241\303\242\303\243\303\244\303\245\303\246\303\247\303\250\303\251\303\252\303\253\303\254\303\255\303\256"
    "\303\257\303\260\303\261\303\262\303\263\303\264\303\265\303\266\303\267\303\270\303\271\303\272\303\273\303\274\303\275"
    "\303\276\303\277\304\200\304\201\304\202\304\203\304\204\304\205\304\206\304\207\304\210\304\211\304\212\304\213\304\214"
    "\304\215\304\216\304\217\304\220\304\221\304\222\304\223\304\226\304\227\304\230\304\231\304\232\304\233\304\234\304\235"
    "\304\236\304\237\304\240\304\241\304\242\304\244\304\245\304\246\304\247\304\250\304\251\304\252\304\253\304\256\304\257"
    "\304\260\304\261\304\262\304\263\304\264\304\265\304\266\304\267\304\270\304\271\304\272\304\273\304\274\304\275\304\276"
    "\304\277\305\200\305\201\305\202\305\203\305\204\305\205\305\206\305\207\305\210\305\211\305\212\305\213\305\214\305\215"
    "\305\220\305\221\305\222\305\223\305\224\305\225\305\226\305\227\305\230\305\231\305\232\305\233\305\234\305\235\305\236"
    "\305\237\305\240\305\241\305\242\305\243\305\244\305\245\305\246\305\247\305\250\305\251\305\252\305\253\305\254\305\255"
    "\305\256\305\257\305\260\305\261\305\262\305\263\305\264\305\265\305\266\305\267\305\270\305\271\305\272\305\273\305\274"
    "\305\275\305\276\306\222\306\265\307\265\310\267\313\206\313\207\313\230\313\231\313\232\313\233\313\234\313\235\314\221"
    "\316\221\316\222\316\223\316\224\316\225\316\226\316\227\316\230\316\231\316\232\316\233\316\234\316\235\316\236\316\237"
    "\316\240\316\241\316\243\316\244\316\245\316\246\316\247\316\250\316\251\316\261\316\262\316\263\316\264\316\265\316\266"
    "\316\267\316\270\316\271\316\272\316\273\316\274\316\275\316\276\316\277\317\200\317\201\317\202\317\203\317\204\317\205"
    "\317\206\317\207\317\210\317\211\317\221\317\222\317\225\317\226\317\234\317\235\317\260\317\261\317\265\317\266\320\201"
    "\320\202\320\203\320\204\320\205\320\206\320\207\320\210\320\211\320\212\320\213\320\214\320\216\320\217\320\220\320\221"
    "\320\222\320\223\320\224\320\225\320\226\320\227\320\230\320\231\320\232\320\233\320\234\320\235\320\236\320\237\320\240"
    "\320\241\320\242\320\243\320\244\320\245\320\246\320\247\320\250\320\251\320\252\320\253\320\254\320\255\320\256\320\257"
    "\320\260\320\261\320\262\320\263\320\264\320\265\320\266\320\267\320\270\320\271\320\272\320\273\320\274\320\275\320\276"
    "\320\277\321\200\321\201\321\202\321\203\321\204\321\205\321\206\321\207\321\210\321\211\321\212\321\213\321\214\321\215"
    "\321\216\321\217\321\221\321\222\321\223\321\224\321\225\321\226\321\227\321\230\321\231\321\232\321\233\321\234\321\236"
    "\321\237\342\200\202\342\200\203\342\200\204\342\200\205\342\200\207\342\200\210\342\200\211\342\200\212\342\200\213"
    "\342\200\214\342\200\215\342\200\216\342\200\217\342\200\220\342\200\223\342\200\224\342\200\225\342\200\226\342\200\230"
    "\342\200\231\342\200\232\342\200\234\342\200\235\342\200\236\342\200\240\342\200\241\342\200\242\342\200\245\342\200\246"
    "\342\200\260\342\200\261\342\200\262\342\200\263\342\200\264\342\200\265\342\200\271\342\200\272\342\200\276\342\201\201"
    "\342\201\203\342\201\204\342\201\217\342\201\227\342\201\237\342\201\237\342\200\212\342\201\240\342\201\241\342\201\242"
    "\342\201\243\342\202\254\342\203\233\342\203\234\342\204\202\342\204\205\342\204\212\342\204\213\342\204\214\342\204\215"
    "\342\204\216\342\204\217\342\204\220\342\204\221\342\204\222\342\204\223\342\204\225\342\204\226\342\204\227\342\204\230"
    "\342\204\231\342\204\232\342\204\233\342\204\234\342\204\235\342\204\236\342\204\242\342\204\244\342\204\247\342\204\250"
    "\342\204\251\342\204\254\342\204\255\342\204\257\342\204\260\342\204\261\342\204\263\342\204\264\342\204\265\342\204\266"
    "\342\204\267\342\204\270\342\205\205\342\205\206\342\205\207\342\205\210\342\205\223\342\205\224\342\205\225\342\205\226"
    "\342\205\227\342\205\230\342\205\231\342\205\232\342\205\233\342\205\234\342\205\235\342\205\236\342\206\220\342\206\221"
    "\342\206\222\342\206\223\342\206\224\342\206\225\342\206\226\342\206\227\342\206\230\342\206\231\342\206\232\342\206\233"
    "\342\206\235\342\206\235\314\270\342\206\236\342\206\237\342\206\240\342\206\241\342\206\242\342\206\243\342\206\244"
    "\342\206\245\342\206\246\342\206\247\342\206\251\342\206\252\342\206\253\342\206\254\342\206\255\342\206\256\342\206\260"
    "\342\206\261\342\206\262\342\206\263\342\206\265\342\206\266\342\206\267\342\206\272\342\206\273\342\206\274\342\206\275"
    "\342\206\276\342\206\277\342\207\200\342\207\201\342\207\202\342\207\203\342\207\204\342\207\205\342\207\206\342\207\207"
    "\342\207\210\342\207\211\342\207\212\342\207\213\342\207\214\342\207\215\342\207\216\342\207\217\342\207\220\342\207\221"
    "\342\207\222\342\207\223\342\207\224\342\207\225\342\207\226\342\207\227\342\207\230\342\207\231\342\207\232\342\207\233"
    "\342\207\235\342\207\244\342\207\245\342\207\265\342\207\275\342\207\276\342\207\277\342\210\200\342\210\201\342\210\202"
    "\342\210\202\314\270\342\210\203\342\210\204\342\210\205\342\210\207\342\210\210\342\210\211\342\210\213\342\210\214"
    "\342\210\217\342\210\220\342\210\221\342\210\222\342\210\223\342\210\224\342\210\226\342\210\227\342\210\230\342\210\232"
    "\342\210\235\342\210\236\342\210\237\342\210\240\342\210\240\342\203\222\342\210\241\342\210\242\342\210\243\342\210\244"
    "\342\210\245\342\210\246\342\210\247\342\210\250\342\210\251\342\210\251\357\270\200\342\210\252\342\210\252\357\270\200"
    "\342\210\253\342\210\254\342\210\255\342\210\256\342\210\257\342\210\260\342\210\261\342\210\262\342\210\263\342\210\264"
    "\342\210\265\342\210\266\342\210\267\342\210\270\342\210\272\342\210\273\342\210\274\342\210\274\342\203\222\342\210\275"
    "\342\210\275\314\261\342\210\276\342\210\276\314\263\342\210\277\342\211\200\342\211\201\342\211\202\342\211\202\314\270"
    "\342\211\203\342\211\204\342\211\205\342\211\206\342\211\207\342\211\210\342\211\211\342\211\212\342\211\213"
    "\342\211\213\314\270\342\211\214\342\211\215\342\211\215\342\203\222\342\211\216\342\211\216\314\270\342\211\217"
    "\342\211\217\314\270\342\211\220\342\211\220\314\270\342\211\221\342\211\222\342\211\223\342\211\224\342\211\225"
    "\342\211\226\342\211\227\342\211\231\342\211\232\342\211\234\342\211\237\342\211\240\342\211\241\342\211\241\342\203\245"
    "\342\211\242\342\211\244\342\211\244\342\203\222\342\211\245\342\211\245\342\203\222\342\211\246\342\211\246\314\270"
    "\342\211\247\342\211\247\314\270\342\211\250\342\211\250\357\270\200\342\211\251\342\211\251\357\270\200\342\211\252"
    "\342\211\252\314\270\342\211\252\342\203\222\342\211\253\342\211\253\314\270\342\211\253\342\203\222\342\211\254"
    "\342\211\255\342\211\256\342\211\257\342\211\260\342\211\261\342\211\262\342\211\263\342\211\264\342\211\265\342\211\266"
    "\342\211\267\342\211\270\342\211\271\342\211\272\342\211\273\342\211\274\342\211\275\342\211\276\342\211\277"
    "\342\211\277\314\270\342\212\200\342\212\201\342\212\202\342\212\202\342\203\222\342\212\203\342\212\203\342\203\222"
    "\342\212\204\342\212\205\342\212\206\342\212\207\342\212\210\342\212\211\342\212\212\342\212\212\357\270\200\342\212\213"
    "\342\212\213\357\270\200\342\212\215\342\212\216\342\212\217\342\212\217\314\270\342\212\220\342\212\220\314\270"
    "\342\212\221\342\212\222\342\212\223\342\212\223\357\270\200\342\212\224\342\212\224\357\270\200\342\212\225\342\212\226"
    "\342\212\227\342\212\230\342\212\231\342\212\232\342\212\233\342\212\235\342\212\236\342\212\237\342\212\240\342\212\241"
    "\342\212\242\342\212\243\342\212\244\342\212\245\342\212\247\342\212\250\342\212\251\342\212\252\342\212\253\342\212\254"
    "\342\212\255\342\212\256\342\212\257\342\212\260\342\212\262\342\212\263\342\212\264\342\212\264\342\203\222\342\212\265"
    "\342\212\265\342\203\222\342\212\266\342\212\267\342\212\270\342\212\271\342\212\272\342\212\273\342\212\275\342\212\276"
    "\342\212\277\342\213\200\342\213\201\342\213\202\342\213\203\342\213\204\342\213\205\342\213\206\342\213\207\342\213\210"
    "\342\213\211\342\213\212\342\213\213\342\213\214\342\213\215\342\213\216\342\213\217\342\213\220\342\213\221\342\213\222"
    "\342\213\223\342\213\224\342\213\225\342\213\226\342\213\227\342\213\230\342\213\230\314\270\342\213\231"
    "\342\213\231\314\270\342\213\232\342\213\232\357\270\200\342\213\233\342\213\233\357\270\200\342\213\236\342\213\237"
    "\342\213\240\342\213\241\342\213\242\342\213\243\342\213\246\342\213\247\342\213\250\342\213\251\342\213\252\342\213\253"
    "\342\213\254\342\213\255\342\213\256\342\213\257\342\213\260\342\213\261\342\213\262\342\213\263\342\213\264\342\213\265"
    "\342\213\265\314\270\342\213\266\342\213\267\342\213\271\342\213\271\314\270\342\213\272\342\213\273\342\213\274"
    "\342\213\275\342\213\276\342\214\205\342\214\206\342\214\210\342\214\211\342\214\212\342\214\213\342\214\214\342\214\215"
    "\342\214\216\342\214\217\342\214\220\342\214\222\342\214\223\342\214\225\342\214\226\342\214\234\342\214\235\342\214\236"
    "\342\214\237\342\214\242\342\214\243\342\214\255\342\214\256\342\214\266\342\214\275\342\214\277\342\215\274\342\216\260"
    "\342\216\261\342\216\264\342\216\265\342\216\266\342\217\234\342\217\235\342\217\236\342\217\237\342\217\242\342\217\247"
    "\342\220\243\342\223\210\342\224\200\342\224\202\342\224\214\342\224\220\342\224\224\342\224\230\342\224\234\342\224\244"
    "\342\224\254\342\224\264\342\224\274\342\225\220\342\225\221\342\225\222\342\225\223\342\225\224\342\225\225\342\225\226"
    "\342\225\227\342\225\230\342\225\231\342\225\232\342\225\233\342\225\234\342\225\235\342\225\236\342\225\237\342\225\240"
    "\342\225\241\342\225\242\342\225\243\342\225\244\342\225\245\342\225\246\342\225\247\342\225\250\342\225\251\342\225\252"
    "\342\225\253\342\225\254\342\226\200\342\226\204\342\226\210\342\226\221\342\226\222\342\226\223\342\226\241\342\226\252"
    "\342\226\253\342\226\255\342\226\256\342\226\261\342\226\263\342\226\264\342\226\265\342\226\270\342\226\271\342\226\275"
    "\342\226\276\342\226\277\342\227\202\342\227\203\342\227\212\342\227\213\342\227\254\342\227\257\342\227\270\342\227\271"
    "\342\227\272\342\227\273\342\227\274\342\230\205\342\230\206\342\230\216\342\231\200\342\231\202\342\231\240\342\231\243"
    "\342\231\245\342\231\246\342\231\252\342\231\255\342\231\256\342\231\257\342\234\223\342\234\227\342\234\240\342\234\266"
    "\342\235\230\342\235\262\342\235\263\342\237\210\342\237\211\342\237\246\342\237\247\342\237\250\342\237\251\342\237\252"
    "\342\237\253\342\237\254\342\237\255\342\237\265\342\237\266\342\237\267\342\237\270\342\237\271\342\237\272\342\237\274"
    "\342\237\277\342\244\202\342\244\203\342\244\204\342\244\205\342\244\214\342\244\215\342\244\216\342\244\217\342\244\220"
    "\342\244\221\342\244\222\342\244\223\342\244\226\342\244\231\342\244\232\342\244\233\342\244\234\342\244\235\342\244\236"
    "\342\244\237\342\244\240\342\244\243\342\244\244\342\244\245\342\244\246\342\244\247\342\244\250\342\244\251\342\244\252"
    "\342\244\263\342\244\263\314\270\342\244\265\342\244\266\342\244\267\342\244\270\342\244\271\342\244\274\342\244\275"
    "\342\245\205\342\245\210\342\245\211\342\245\212\342\245\213\342\245\216\342\245\217\342\245\220\342\245\221\342\245\222"
    "\342\245\223\342\245\224\342\245\225\342\245\226\342\245\227\342\245\230\342\245\231\342\245\232\342\245\233\342\245\234"
    "\342\245\235\342\245\236\342\245\237\342\245\240\342\245\241\342\245\242\342\245\243\342\245\244\342\245\245\342\245\246"
    "\342\245\247\342\245\250\342\245\251\342\245\252\342\245\253\342\245\254\342\245\255\342\245\256\342\245\257\342\245\260"
    "\342\245\261\342\245\262\342\245\263\342\245\264\342\245\265\342\245\266\342\245\270\342\245\271\342\245\273\342\245\274"
    "\342\245\275\342\245\276\342\245\277\342\246\205\342\246\206\342\246\213\342\246\214\342\246\215\342\246\216\342\246\217"
    "\342\246\220\342\246\221\342\246\222\342\246\223\342\246\224\342\246\225\342\246\226\342\246\232\342\246\234\342\246\235"
    "\342\246\244\342\246\245\342\246\246\342\246\247\342\246\250\342\246\251\342\246\252\342\246\253\342\246\254\342\246\255"
    "\342\246\256\342\246\257\342\246\260\342\246\261\342\246\262\342\246\263\342\246\264\342\246\265\342\246\266\342\246\267"
    "\342\246\271\342\246\273\342\246\274\342\246\276\342\246\277\342\247\200\342\247\201\342\247\202\342\247\203\342\247\204"
    "\342\247\205\342\247\211\342\247\215\342\247\216\342\247\217\342\247\217\314\270\342\247\220\342\247\220\314\270"
    "\342\247\234\342\247\235\342\247\236\342\247\243\342\247\244\342\247\245\342\247\253\342\247\264\342\247\266\342\250\200"
    "\342\250\201\342\250\202\342\250\204\342\250\206\342\250\214\342\250\215\342\250\220\342\250\221\342\250\222\342\250\223"
    "\342\250\224\342\250\225\342\250\226\342\250\227\342\250\242\342\250\243\342\250\244\342\250\245\342\250\246\342\250\247"
    "\342\250\251\342\250\252\342\250\255\342\250\256\342\250\257\342\250\260\342\250\261\342\250\263\342\250\264\342\250\265"
    "\342\250\266\342\250\267\342\250\270\342\250\271\342\250\272\342\250\273\342\250\274\342\250\277\342\251\200\342\251\202"
    "\342\251\203\342\251\204\342\251\205\342\251\206\342\251\207\342\251\210\342\251\211\342\251\212\342\251\213\342\251\214"
    "\342\251\215\342\251\220\342\251\223\342\251\224\342\251\225\342\251\226\342\251\227\342\251\230\342\251\232\342\251\233"
    "\342\251\234\342\251\235\342\251\237\342\251\246\342\251\252\342\251\255\342\251\255\314\270\342\251\256\342\251\257"
    "\342\251\260\342\251\260\314\270\342\251\261\342\251\262\342\251\263\342\251\264\342\251\265\342\251\267\342\251\270"
    "\342\251\271\342\251\272\342\251\273\342\251\274\342\251\275\342\251\275\314\270\342\251\276\342\251\276\314\270"
    "\342\251\277\342\252\200\342\252\201\342\252\202\342\252\203\342\252\204\342\252\205\342\252\206\342\252\207\342\252\210"
    "\342\252\211\342\252\212\342\252\213\342\252\214\342\252\215\342\252\216\342\252\217\342\252\220\342\252\221\342\252\222"
    "\342\252\223\342\252\224\342\252\225\342\252\226\342\252\227\342\252\230\342\252\231\342\252\232\342\252\235\342\252\236"
    "\342\252\237\342\252\240\342\252\241\342\252\241\314\270\342\252\242\342\252\242\314\270\342\252\244\342\252\245"
    "\342\252\246\342\252\247\342\252\250\342\252\251\342\252\252\342\252\253\342\252\254\342\252\254\357\270\200\342\252\255"
    "\342\252\255\357\270\200\342\252\256\342\252\257\342\252\257\314\270\342\252\260\342\252\260\314\270\342\252\263"
    "\342\252\264\342\252\265\342\252\266\342\252\267\342\252\270\342\252\271\342\252\272\342\252\273\342\252\274\342\252\275"
    "\342\252\276\342\252\277\342\253\200\342\253\201\342\253\202\342\253\203\342\253\204\342\253\205\342\253\205\314\270"
    "\342\253\206\342\253\206\314\270\342\253\207\342\253\210\342\253\213\342\253\213\357\270\200\342\253\214"
    "\342\253\214\357\270\200\342\253\217\342\253\220\342\253\221\342\253\222\342\253\223\342\253\224\342\253\225\342\253\226"
    "\342\253\227\342\253\230\342\253\231\342\253\232\342\253\233\342\253\244\342\253\246\342\253\247\342\253\250\342\253\251"
    "\342\253\253\342\253\254\342\253\255\342\253\256\342\253\257\342\253\260\342\253\261\342\253\262\342\253\263\342\253\275"
    "\342\253\275\342\203\245\357\254\200\357\254\201\357\254\202\357\254\203\357\254\204\360\235\222\234\360\235\222\236"
    "\360\235\222\237\360\235\222\242\360\235\222\245\360\235\222\246\360\235\222\251\360\235\222\252\360\235\222\253"
    "\360\235\222\254\360\235\222\256\360\235\222\257\360\235\222\260\360\235\222\261\360\235\222\262\360\235\222\263"
    "\360\235\222\264\360\235\222\265\360\235\222\266\360\235\222\267\360\235\222\270\360\235\222\271\360\235\222\273"
    "\360\235\222\275\360\235\222\276\360\235\222\277\360\235\223\200\360\235\223\201\360\235\223\202\360\235\223\203"
    "\360\235\223\205\360\235\223\206\360\235\223\207\360\235\223\210\360\235\223\211\360\235\223\212\360\235\223\213"
    "\360\235\223\214\360\235\223\215\360\235\223\216\360\235\223\217\360\235\224\204\360\235\224\205\360\235\224\207"
    "\360\235\224\210\360\235\224\211\360\235\224\212\360\235\224\215\360\235\224\216\360\235\224\217\360\235\224\220"
    "\360\235\224\221\360\235\224\222\360\235\224\223\360\235\224\224\360\235\224\226\360\235\224\227\360\235\224\230"
    "\360\235\224\231\360\235\224\232\360\235\224\233\360\235\224\234\360\235\224\236\360\235\224\237\360\235\224\240"
    "\360\235\224\241\360\235\224\242\360\235\224\243\360\235\224\244\360\235\224\245\360\235\224\246\360\235\224\247"
    "\360\235\224\250\360\235\224\251\360\235\224\252\360\235\224\253\360\235\224\254\360\235\224\255\360\235\224\256"
    "\360\235\224\257\360\235\224\260\360\235\224\261\360\235\224\262\360\235\224\263\360\235\224\264\360\235\224\265"
    "\360\235\224\266\360\235\224\267\360\235\224\270\360\235\224\271\360\235\224\273\360\235\224\274\360\235\224\275"
    "\360\235\224\276\360\235\225\200\360\235\225\201\360\235\225\202\360\235\225\203\360\235\225\204\360\235\225\206"
    "\360\235\225\212\360\235\225\213\360\235\225\214\360\235\225\215\360\235\225\216\360\235\225\217\360\235\225\220"
    "\360\235\225\222\360\235\225\223\360\235\225\224\360\235\225\225\360\235\225\226\360\235\225\227\360\235\225\230"
    "\360\235\225\231\360\235\225\232\360\235\225\233\360\235\225\234\360\235\225\235\360\235\225\236\360\235\225\237"
    "\360\235\225\240\360\235\225\241\360\235\225\242\360\235\225\243\360\235\225\244\360\235\225\245\360\235\225\246"
    "\360\235\225\247\360\235\225\250\360\235\225\251\360\235\225\252\360\235\225\253";

inline constexpr NamedReferenceEntry namedReferenceEntries[] = {
    {0, 122, 5, 2}, {5, 122, 6, 2}, {11, 7, 3, 1}, {14, 7, 4, 1}, {18, 112, 6, 2}, {24, 112, 7, 2}, {31, 242, 7, 2}, {38, 114, 5, 2},
    {43, 114, 6, 2}, {49, 650, 4, 2}, {53, 4006, 4, 4}, {57, 110, 6, 2}, {63, 110, 7, 2}, {70, 504, 6, 2}, {76, 238, 6, 2},
    {82, 3360, 4, 3}, {86, 246, 6, 2}, {92, 4194, 5, 4}, {97, 947, 14, 3}, {111, 120, 5, 2}, {116, 120, 6, 2}, {122, 3842, 5, 4},
    {127, 1658, 7, 3}, {134, 116, 6, 2}, {140, 116, 7, 2}, {147, 118, 4, 2}, {151, 118, 5, 2}, {156, 1419, 10, 3}, {166, 3782, 5, 3},
    {171, 2286, 7, 3}, {178, 652, 4, 2}, {182, 1521, 8, 3}, {190, 1046, 11, 3}, {201, 506, 5, 2}, {206, 4010, 4, 4}, {210, 4198, 5, 4},
    {215, 490, 6, 2}, {221, 1046, 5, 3}, {226, 1625, 7, 3}, {233, 696, 5, 2}, {238, 64, 4, 2}, {242, 64, 5, 2}, {247, 250, 7, 2},
    {254, 2131, 4, 3}, {258, 1079, 21, 3}, {279, 1049, 8, 3}, {287, 262, 7, 2}, {294, 124, 6, 2}, {300, 124, 7, 2}, {307, 254, 6, 2},
    {313, 1506, 8, 3}, {321, 258, 5, 2}, {326, 94, 8, 2}, {334, 92, 10, 2}, {344, 1049, 4, 3}, {348, 546, 4, 2}, {352, 1960, 10, 3},
    {362, 1951, 12, 3}, {374, 1948, 11, 3}, {385, 1954, 12, 3}, {397, 1512, 25, 3}, {422, 872, 22, 3}, {444, 863, 16, 3},
    {460, 1527, 6, 3}, {466, 3430, 7, 3}, {473, 1685, 10, 3}, {483, 1503, 7, 3}, {490, 1500, 16, 3}, {506, 965, 5, 3},
    {511, 1404, 10, 3}, {521, 1515, 32, 3}, {553, 3276, 6, 3}, {559, 3846, 5, 4}, {564, 2134, 4, 3}, {568, 1616, 7, 3},
    {575, 1079, 3, 3}, {578, 2757, 9, 3}, {587, 624, 5, 2}, {592, 630, 5, 2}, {597, 648, 5, 2}, {602, 881, 7, 3}, {609, 1180, 5, 3},
    {614, 3776, 6, 3}, {620, 266, 7, 2}, {627, 658, 4, 2}, {631, 1386, 4, 3}, {635, 510, 6, 2}, {641, 4014, 4, 4}, {645, 86, 17, 2},
    {662, 492, 15, 2}, {677, 500, 23, 2}, {700, 40, 17, 1}, {717, 498, 17, 2}, {734, 2089, 8, 3}, {742, 1082, 14, 3}, {756, 4202, 5, 4},
    {761, 62, 4, 2}, {765, 962, 7, 3}, {772, 1641, 9, 3}, {781, 1503, 22, 3}, {803, 62, 10, 2}, {813, 1315, 16, 3}, {829, 1306, 16, 3},
    {845, 1318, 21, 3}, {866, 3776, 14, 3}, {880, 2715, 20, 3}, {900, 2721, 25, 3}, {925, 2718, 21, 3}, {946, 1312, 17, 3},
    {963, 1999, 15, 3}, {978, 1309, 14, 3}, {992, 1321, 18, 3}, {1010, 1461, 18, 3}, {1028, 1136, 10, 3}, {1038, 2763, 13, 3},
    {1051, 1351, 17, 3}, {1068, 502, 10, 2}, {1078, 2867, 20, 3}, {1098, 2909, 18, 3}, {1116, 1249, 15, 3}, {1131, 2885, 18, 3},
    {1149, 2912, 19, 3}, {1168, 1261, 16, 3}, {1184, 2888, 19, 3}, {1203, 1990, 8, 3}, {1211, 1198, 13, 3}, {1224, 1315, 10, 3},
    {1234, 3850, 5, 4}, {1239, 270, 7, 2}, {1246, 376, 4, 2}, {1250, 142, 3, 2}, {1253, 142, 4, 2}, {1257, 128, 6, 2},
    {1263, 128, 7, 2}, {1270, 286, 7, 2}, {1277, 130, 5, 2}, {1282, 130, 6, 2}, {1288, 708, 4, 2}, {1292, 278, 5, 2},
    {1297, 4018, 4, 4}, {1301, 126, 6, 2}, {1307, 126, 7, 2}, {1314, 1389, 8, 3}, {1322, 274, 6, 2}, {1328, 2610, 17, 3},
    {1345, 2547, 21, 3}, {1366, 282, 6, 2}, {1372, 4206, 5, 4}, {1377, 512, 8, 2}, {1385, 3433, 6, 3}, {1391, 1573, 11, 3},
    {1402, 1294, 12, 3}, {1414, 1055, 5, 3}, {1419, 3427, 5, 3}, {1424, 516, 4, 2}, {1428, 132, 4, 2}, {1432, 132, 5, 2},
    {1437, 1377, 7, 3}, {1444, 1085, 13, 3}, {1457, 690, 4, 2}, {1461, 4022, 4, 4}, {1465, 2613, 18, 3}, {1483, 2544, 22, 3},
    {1505, 4210, 5, 4}, {1510, 1363, 7, 3}, {1517, 1058, 11, 3}, {1528, 1058, 5, 3}, {1533, 626, 5, 2}, {1538, 28, 2, 1},
    {1540, 28, 3, 1}, {1543, 508, 6, 2}, {1549, 610, 7, 2}, {1556, 294, 7, 2}, {1563, 302, 7, 2}, {1570, 290, 6, 2}, {1576, 656, 4, 2},
    {1580, 298, 5, 2}, {1585, 4026, 4, 4}, {1589, 2157, 3, 3}, {1592, 4214, 5, 4}, {1597, 1706, 13, 3}, {1610, 2174, 17, 3},
    {1627, 1723, 17, 3}, {1644, 3574, 15, 3}, {1659, 1810, 12, 3}, {1671, 3462, 18, 3}, {1689, 1798, 13, 3}, {1702, 3854, 5, 4},
    {1707, 1763, 3, 3}, {1710, 702, 7, 2}, {1717, 488, 6, 2}, {1723, 38, 4, 1}, {1727, 304, 6, 2}, {1733, 977, 4, 3},
    {1737, 974, 13, 3}, {1750, 980, 5, 3}, {1755, 2403, 15, 3}, {1770, 974, 5, 3}, {1775, 308, 7, 2}, {1782, 1625, 13, 3},
    {1795, 1633, 10, 3}, {1805, 660, 5, 2}, {1810, 328, 6, 2}, {1816, 622, 5, 2}, {1821, 136, 6, 2}, {1827, 136, 7, 2},
    {1834, 138, 5, 2}, {1839, 138, 6, 2}, {1845, 666, 4, 2}, {1849, 324, 5, 2}, {1854, 992, 4, 3}, {1858, 134, 6, 2}, {1864, 134, 7, 2},
    {1871, 992, 3, 3}, {1874, 316, 6, 2}, {1880, 1088, 11, 3}, {1891, 1312, 8, 3}, {1899, 1494, 4, 3}, {1903, 1491, 9, 3},
    {1912, 2083, 13, 3}, {1925, 953, 15, 3}, {1940, 950, 15, 3}, {1955, 320, 6, 2}, {1961, 4218, 5, 4}, {1966, 520, 5, 2},
    {1971, 989, 5, 3}, {1976, 312, 7, 2}, {1983, 632, 6, 2}, {1989, 140, 4, 2}, {1993, 140, 5, 2}, {1998, 332, 6, 2}, {2004, 668, 4, 2},
    {2008, 4030, 4, 4}, {2012, 4222, 5, 4}, {2017, 3858, 5, 4}, {2022, 636, 7, 2}, {2029, 628, 6, 2}, {2035, 692, 5, 2},
    {2040, 644, 5, 2}, {2045, 522, 6, 2}, {2051, 336, 7, 2}, {2058, 670, 4, 2}, {2062, 4034, 4, 4}, {2066, 4226, 5, 4},
    {2071, 3862, 5, 4}, {2076, 638, 5, 2}, {2081, 18, 2, 1}, {2083, 18, 3, 1}, {2086, 342, 7, 2}, {2093, 524, 7, 2}, {2100, 2694, 5, 3},
    {2105, 995, 11, 3}, {2116, 1171, 5, 3}, {2121, 350, 7, 2}, {2128, 346, 7, 2}, {2135, 672, 4, 2}, {2139, 2688, 17, 3},
    {2156, 1127, 10, 3}, {2166, 1345, 13, 3}, {2179, 1276, 20, 3}, {2199, 2289, 12, 3}, {2211, 2682, 18, 3}, {2229, 2918, 18, 3},
    {2247, 1267, 15, 3}, {2262, 2894, 18, 3}, {2280, 2295, 10, 3}, {2290, 1139, 15, 3}, {2305, 2861, 16, 3}, {2321, 1987, 8, 3},
    {2329, 1189, 13, 3}, {2342, 2897, 14, 3}, {2356, 2026, 13, 3}, {2369, 3158, 16, 3}, {2385, 2032, 18, 3}, {2403, 2870, 17, 3},
    {2420, 2915, 16, 3}, {2436, 1255, 13, 3}, {2449, 2891, 16, 3}, {2465, 1246, 11, 3}, {2476, 2873, 14, 3}, {2490, 1306, 10, 3},
    {2500, 1318, 15, 3}, {2515, 2165, 17, 3}, {2532, 1715, 14, 3}, {2546, 1807, 12, 3}, {2558, 3566, 9, 3}, {2567, 3454, 15, 3},
    {2582, 1795, 10, 3}, {2592, 4038, 4, 4}, {2596, 2149, 3, 3}, {2599, 1336, 11, 3}, {2610, 354, 7, 2}, {2617, 2706, 14, 3},
    {2631, 2712, 19, 3}, {2650, 2709, 15, 3}, {2665, 2715, 14, 3}, {2679, 2721, 19, 3}, {2698, 2718, 15, 3}, {2713, 4230, 5, 4},
    {2718, 1154, 15, 3}, {2733, 1151, 16, 3}, {2749, 995, 5, 3}, {2754, 1219, 4, 3}, {2758, 358, 7, 2}, {2765, 1749, 3, 3},
    {2768, 2739, 4, 3}, {2772, 674, 4, 2}, {2776, 935, 12, 3}, {2788, 1061, 10, 3}, {2798, 4042, 4, 4}, {2802, 1413, 10, 3},
    {2812, 4234, 5, 4}, {2817, 1061, 5, 3}, {2822, 526, 3, 2}, {2825, 640, 5, 2}, {2830, 362, 7, 2}, {2837, 370, 7, 2},
    {2844, 366, 7, 2}, {2851, 676, 4, 2}, {2855, 830, 20, 3}, {2875, 830, 19, 3}, {2894, 830, 18, 3}, {2912, 830, 22, 3},
    {2934, 1763, 21, 3}, {2955, 1749, 15, 3}, {2970, 1, 8, 1}, {2978, 4046, 4, 4}, {2982, 944, 8, 3}, {2990, 46, 17, 2},
    {3007, 1001, 5, 3}, {3012, 3794, 4, 3}, {3016, 1694, 13, 3}, {3029, 1780, 10, 3}, {3039, 1464, 21, 3}, {3060, 1392, 11, 3},
    {3071, 1682, 9, 3}, {3080, 1576, 14, 5}, {3094, 1380, 10, 3}, {3104, 1786, 11, 3}, {3115, 1792, 16, 3}, {3131, 1726, 20, 5},
    {3151, 1766, 18, 5}, {3169, 1816, 15, 3}, {3184, 3465, 21, 5}, {3205, 1804, 16, 3}, {3221, 1628, 16, 5}, {3237, 1636, 13, 5},
    {3250, 2213, 16, 3}, {3266, 3161, 19, 5}, {3285, 2219, 21, 3}, {3306, 1783, 8, 3}, {3314, 1789, 13, 3}, {3327, 1813, 15, 3},
    {3342, 1752, 12, 5}, {3354, 3457, 18, 5}, {3372, 1801, 13, 3}, {3385, 3577, 24, 5}, {3409, 3569, 18, 5}, {3427, 1842, 12, 3},
    {3439, 3630, 17, 5}, {3456, 2189, 22, 3}, {3478, 1398, 18, 3}, {3496, 2216, 17, 3}, {3513, 3169, 20, 5}, {3533, 2222, 22, 3},
    {3555, 1911, 16, 5}, {3571, 2195, 21, 3}, {3592, 1919, 18, 5}, {3610, 2198, 23, 3}, {3633, 1851, 10, 6}, {3643, 1878, 15, 3},
    {3658, 1845, 12, 3}, {3670, 3638, 17, 5}, {3687, 2192, 22, 3}, {3709, 1837, 17, 5}, {3726, 1860, 12, 6}, {3738, 1881, 17, 3},
    {3755, 1570, 9, 3}, {3764, 1584, 14, 3}, {3778, 1593, 18, 3}, {3796, 1599, 14, 3}, {3810, 1458, 15, 3}, {3825, 3866, 5, 4},
    {3830, 144, 6, 2}, {3836, 144, 7, 2}, {3843, 528, 3, 2}, {3846, 388, 6, 2}, {3852, 148, 6, 2}, {3858, 148, 7, 2}, {3865, 150, 5, 2},
    {3870, 150, 6, 2}, {3876, 678, 4, 2}, {3880, 384, 7, 2}, {3887, 4050, 4, 4}, {3891, 146, 6, 2}, {3897, 146, 7, 2},
    {3904, 380, 6, 2}, {3910, 550, 6, 2}, {3916, 532, 8, 2}, {3924, 4238, 5, 4}, {3929, 869, 21, 3}, {3950, 860, 15, 3},
    {3965, 3363, 3, 3}, {3968, 3870, 5, 4}, {3973, 158, 6, 2}, {3979, 158, 7, 2}, {3986, 152, 6, 2}, {3992, 152, 7, 2},
    {3999, 3297, 7, 3}, {4006, 154, 4, 2}, {4010, 154, 5, 2}, {4015, 917, 8, 3}, {4023, 2385, 10, 3}, {4033, 2370, 12, 3},
    {4045, 2379, 16, 3}, {4061, 1369, 9, 3}, {4070, 680, 4, 2}, {4074, 4054, 4, 4}, {4078, 544, 4, 2}, {4082, 534, 3, 2},
    {4085, 80, 10, 2}, {4095, 977, 14, 3}, {4109, 1013, 5, 3}, {4114, 3667, 3, 3}, {4117, 1819, 9, 3}, {4126, 3627, 14, 3},
    {4140, 1825, 19, 3}, {4159, 1831, 14, 3}, {4173, 902, 6, 3}, {4179, 1401, 8, 3}, {4187, 1527, 11, 3}, {4198, 1431, 13, 3},
    {4211, 3874, 5, 4}, {4216, 548, 4, 2}, {4220, 3, 4, 1}, {4224, 3, 5, 1}, {4229, 4058, 4, 4}, {4233, 1016, 5, 3}, {4238, 3878, 5, 4},
    {4243, 2754, 6, 3}, {4249, 74, 3, 2}, {4252, 74, 4, 2}, {4256, 392, 7, 2}, {4263, 2697, 5, 3}, {4268, 1177, 5, 3},
    {4273, 2766, 7, 3}, {4280, 400, 7, 2}, {4287, 396, 7, 2}, {4294, 682, 4, 2}, {4298, 1022, 3, 3}, {4301, 1395, 15, 3},
    {4316, 1291, 19, 3}, {4335, 2960, 21, 3}, {4356, 1022, 4, 3}, {4360, 536, 4, 2}, {4364, 2691, 18, 3}, {4382, 1133, 11, 3},
    {4393, 1348, 14, 3}, {4407, 1270, 20, 3}, {4427, 2292, 13, 3}, {4440, 2685, 19, 3}, {4459, 2906, 19, 3}, {4478, 1264, 16, 3},
    {4494, 2882, 19, 3}, {4513, 2298, 11, 3}, {4524, 1984, 9, 3}, {4533, 1195, 14, 3}, {4547, 2900, 15, 3}, {4562, 2029, 14, 3},
    {4576, 3166, 17, 3}, {4593, 2041, 19, 3}, {4612, 2864, 18, 3}, {4630, 2903, 17, 3}, {4647, 1252, 14, 3}, {4661, 2879, 17, 3},
    {4678, 1258, 12, 3}, {4690, 2876, 15, 3}, {4705, 1312, 11, 3}, {4716, 1025, 5, 3}, {4721, 2963, 13, 3}, {4734, 1339, 12, 3},
    {4746, 1019, 5, 3}, {4751, 1222, 4, 3}, {4755, 3195, 12, 3}, {4767, 700, 7, 2}, {4774, 698, 5, 2}, {4779, 706, 7, 2},
    {4786, 404, 7, 2}, {4793, 3670, 3, 3}, {4796, 416, 7, 2}, {4803, 412, 7, 2}, {4810, 408, 6, 2}, {4816, 684, 4, 2},
    {4820, 4062, 4, 4}, {4824, 1136, 15, 3}, {4839, 1127, 15, 3}, {4854, 1133, 16, 3}, {4870, 1130, 13, 3}, {4883, 538, 6, 2},
    {4889, 1425, 12, 3}, {4901, 4242, 5, 4}, {4906, 1428, 5, 3}, {4911, 2541, 7, 3}, {4918, 1930, 19, 3}, {4937, 1908, 13, 3},
    {4950, 1924, 18, 3}, {4968, 1916, 15, 3}, {4983, 1927, 20, 3}, {5003, 1939, 12, 3}, {5015, 3882, 5, 4}, {5020, 2095, 5, 3},
    {5025, 2125, 4, 3}, {5029, 2125, 7, 3}, {5036, 1872, 12, 3}, {5048, 1822, 9, 3}, {5057, 3635, 14, 3}, {5071, 1828, 19, 3},
    {5090, 1834, 14, 3}, {5104, 1395, 9, 3}, {5113, 1407, 4, 3}, {5117, 2128, 4, 3}, {5121, 1857, 9, 3}, {5130, 1875, 14, 3},
    {5144, 2128, 7, 3}, {5151, 170, 5, 2}, {5156, 170, 6, 2}, {5162, 1031, 6, 3}, {5168, 642, 6, 2}, {5174, 694, 5, 2}, {5179, 0, 4, 1},
    {5183, 540, 4, 2}, {5187, 424, 7, 2}, {5194, 420, 7, 2}, {5201, 686, 4, 2}, {5205, 4066, 4, 4}, {5209, 1518, 10, 3},
    {5219, 518, 6, 2}, {5225, 938, 11, 6}, {5236, 824, 10, 3}, {5246, 1539, 6, 3}, {5252, 1581, 11, 3}, {5263, 1587, 15, 3},
    {5278, 1596, 11, 3}, {5289, 4246, 5, 4}, {5294, 959, 10, 3}, {5304, 3886, 5, 4}, {5309, 428, 7, 2}, {5316, 162, 6, 2},
    {5322, 162, 7, 2}, {5329, 1174, 5, 3}, {5334, 2852, 9, 3}, {5343, 646, 6, 2}, {5349, 440, 7, 2}, {5356, 164, 5, 2},
    {5361, 164, 6, 2}, {5367, 688, 4, 2}, {5371, 448, 7, 2}, {5378, 4070, 4, 4}, {5382, 160, 6, 2}, {5388, 160, 7, 2},
    {5395, 436, 6, 2}, {5401, 39, 9, 1}, {5410, 2388, 11, 3}, {5421, 2373, 13, 3}, {5434, 2382, 17, 3}, {5451, 2086, 6, 3},
    {5457, 1905, 10, 3}, {5467, 452, 6, 2}, {5473, 4250, 5, 4}, {5478, 1130, 8, 3}, {5486, 2760, 11, 3}, {5497, 1273, 17, 3},
    {5514, 1142, 12, 3}, {5526, 2957, 14, 3}, {5540, 1993, 6, 3}, {5546, 1192, 11, 3}, {5557, 1309, 8, 3}, {5565, 1321, 12, 3},
    {5577, 1145, 15, 3}, {5592, 1148, 16, 3}, {5608, 604, 5, 2}, {5613, 542, 8, 2}, {5621, 444, 6, 2}, {5627, 3890, 5, 4},
    {5632, 432, 7, 2}, {5639, 166, 4, 2}, {5643, 166, 5, 2}, {5648, 2008, 6, 3}, {5654, 3791, 5, 3}, {5659, 654, 4, 2},
    {5663, 2002, 6, 3}, {5669, 3779, 7, 3}, {5676, 2080, 4, 3}, {5680, 857, 7, 3}, {5687, 857, 5, 3}, {5692, 1455, 12, 3},
    {5704, 44, 13, 1}, {5717, 2667, 18, 3}, {5735, 1567, 14, 3}, {5749, 827, 14, 3}, {5763, 4074, 4, 4}, {5767, 4254, 5, 4},
    {5772, 3894, 5, 4}, {5777, 2005, 7, 3}, {5784, 456, 6, 2}, {5790, 2077, 6, 3}, {5796, 4078, 4, 4}, {5800, 4258, 5, 4},
    {5805, 3898, 5, 4}, {5810, 4082, 4, 4}, {5814, 530, 3, 2}, {5817, 4262, 5, 4}, {5822, 3902, 5, 4}, {5827, 712, 5, 2},
    {5832, 634, 5, 2}, {5837, 710, 5, 2}, {5842, 168, 6, 2}, {5848, 168, 7, 2}, {5855, 460, 6, 2}, {5861, 704, 4, 2},
    {5865, 4086, 4, 4}, {5869, 4266, 5, 4}, {5874, 3906, 5, 4}, {5879, 464, 5, 2}, {5884, 662, 5, 2}, {5889, 466, 7, 2},
    {5896, 474, 7, 2}, {5903, 664, 4, 2}, {5907, 470, 5, 2}, {5912, 830, 15, 3}, {5927, 514, 5, 2}, {5932, 1040, 4, 3},
    {5936, 1034, 5, 3}, {5941, 3910, 5, 4}, {5946, 176, 6, 2}, {5952, 176, 7, 2}, {5959, 244, 7, 2}, {5966, 1556, 3, 3},
    {5969, 1559, 4, 5}, {5973, 1564, 4, 3}, {5977, 178, 5, 2}, {5982, 178, 6, 2}, {5988, 86, 5, 2}, {5993, 86, 6, 2}, {5999, 714, 4, 2},
    {6003, 186, 5, 2}, {6008, 186, 6, 2}, {6014, 947, 3, 3}, {6017, 4090, 4, 4}, {6021, 174, 6, 2}, {6027, 174, 7, 2},
    {6034, 1067, 8, 3}, {6042, 1067, 6, 3}, {6048, 552, 6, 2}, {6054, 240, 6, 2}, {6060, 3315, 6, 3}, {6066, 7, 3, 1}, {6069, 7, 4, 1},
    {6073, 1467, 4, 3}, {6077, 3366, 7, 3}, {6084, 3384, 5, 3}, {6089, 3375, 9, 3}, {6098, 3378, 5, 3}, {6103, 1440, 4, 3},
    {6107, 3056, 5, 3}, {6112, 1440, 6, 3}, {6118, 1449, 7, 3}, {6125, 3068, 9, 3}, {6134, 3071, 9, 3}, {6143, 3074, 9, 3},
    {6152, 3077, 9, 3}, {6161, 3080, 9, 3}, {6170, 3083, 9, 3}, {6179, 3086, 9, 3}, {6188, 3089, 9, 3}, {6197, 1437, 6, 3},
    {6203, 2071, 8, 3}, {6211, 3053, 9, 3}, {6220, 1452, 7, 3}, {6227, 120, 6, 2}, {6233, 2361, 8, 3}, {6241, 248, 6, 2},
    {6247, 4270, 5, 4}, {6252, 1596, 3, 3}, {6255, 3413, 4, 3}, {6259, 3410, 7, 3}, {6266, 1602, 4, 3}, {6270, 1605, 5, 3},
    {6275, 8, 5, 1}, {6280, 1596, 7, 3}, {6287, 1602, 9, 3}, {6296, 184, 5, 2}, {6301, 184, 6, 2}, {6307, 3914, 5, 4}, {6312, 11, 4, 1},
    {6316, 1596, 6, 3}, {6322, 1616, 8, 3}, {6330, 180, 6, 2}, {6336, 180, 7, 2}, {6343, 182, 4, 2}, {6347, 182, 5, 2},
    {6352, 1515, 9, 3}, {6361, 3225, 6, 3}, {6367, 3797, 5, 3}, {6372, 1613, 9, 3}, {6381, 620, 12, 2}, {6393, 908, 10, 3},
    {6403, 1548, 8, 3}, {6411, 2116, 10, 3}, {6421, 2068, 7, 3}, {6428, 2283, 7, 3}, {6435, 2283, 9, 3}, {6444, 2373, 5, 3},
    {6449, 2376, 9, 3}, {6458, 1613, 6, 3}, {6464, 716, 4, 2}, {6468, 875, 6, 3}, {6474, 1521, 7, 3}, {6481, 1521, 8, 3},
    {6489, 3092, 8, 3}, {6497, 620, 6, 2}, {6503, 1046, 7, 3}, {6510, 554, 5, 2}, {6515, 1070, 5, 3}, {6520, 1777, 8, 3},
    {6528, 4094, 4, 4}, {6532, 2083, 7, 3}, {6539, 2598, 8, 3}, {6547, 2086, 7, 3}, {6554, 3201, 8, 3}, {6562, 3204, 9, 3},
    {6571, 3207, 10, 3}, {6581, 3213, 9, 3}, {6590, 2616, 8, 3}, {6598, 2574, 16, 3}, {6614, 2559, 14, 3}, {6628, 3210, 9, 3},
    {6637, 2080, 7, 3}, {6644, 2077, 9, 3}, {6653, 2745, 7, 3}, {6660, 3192, 13, 3}, {6673, 2544, 12, 3}, {6685, 2562, 14, 3},
    {6699, 2577, 18, 3}, {6717, 2583, 18, 3}, {6735, 2568, 19, 3}, {6754, 2397, 6, 3}, {6760, 2535, 6, 3}, {6766, 2532, 6, 3},
    {6772, 2538, 6, 3}, {6778, 2529, 6, 3}, {6784, 24, 4, 4}, {6788, 1688, 8, 6}, {6796, 2313, 5, 3}, {6801, 4274, 5, 4},
    {6806, 1993, 4, 3}, {6810, 1993, 7, 3}, {6817, 2101, 7, 3}, {6824, 2457, 6, 3}, {6830, 2448, 6, 3}, {6836, 2454, 6, 3},
    {6842, 2445, 6, 3}, {6848, 2436, 5, 3}, {6853, 2502, 6, 3}, {6859, 2511, 6, 3}, {6865, 2496, 6, 3}, {6871, 2505, 6, 3},
    {6877, 2475, 6, 3}, {6883, 2466, 6, 3}, {6889, 2472, 6, 3}, {6895, 2463, 6, 3}, {6901, 2439, 5, 3}, {6906, 2520, 6, 3},
    {6912, 2493, 6, 3}, {6918, 2484, 6, 3}, {6924, 2517, 6, 3}, {6930, 2490, 6, 3}, {6936, 2481, 6, 3}, {6942, 3149, 7, 3},
    {6949, 2451, 6, 3}, {6955, 2442, 6, 3}, {6961, 2412, 6, 3}, {6967, 2409, 6, 3}, {6973, 2403, 5, 3}, {6978, 2499, 6, 3},
    {6984, 2508, 6, 3}, {6990, 2427, 6, 3}, {6996, 2430, 6, 3}, {7002, 1975, 9, 3}, {7011, 1972, 8, 3}, {7019, 1978, 9, 3},
    {7028, 2469, 6, 3}, {7034, 2460, 6, 3}, {7040, 2418, 6, 3}, {7046, 2415, 6, 3}, {7052, 2406, 5, 3}, {7057, 2514, 6, 3},
    {7063, 2487, 6, 3}, {7069, 2478, 6, 3}, {7075, 2433, 6, 3}, {7081, 2424, 6, 3}, {7087, 2421, 6, 3}, {7093, 908, 7, 3},
    {7100, 490, 6, 2}, {7106, 58, 6, 2}, {7112, 58, 7, 2}, {7119, 3918, 5, 4}, {7124, 929, 6, 3}, {7130, 1548, 5, 3},
    {7135, 2116, 6, 3}, {7141, 36, 5, 1}, {7146, 3146, 6, 3}, {7152, 2676, 9, 3}, {7161, 884, 5, 3}, {7166, 884, 7, 3},
    {7173, 1625, 5, 3}, {7178, 3624, 6, 3}, {7184, 1633, 6, 3}, {7190, 1633, 7, 3}, {7197, 252, 7, 2}, {7204, 1473, 4, 3},
    {7208, 3327, 7, 3}, {7215, 3342, 9, 3}, {7224, 3348, 7, 3}, {7231, 3336, 7, 3}, {7238, 3318, 7, 3}, {7245, 1476, 5, 6},
    {7250, 920, 6, 3}, {7256, 488, 6, 2}, {7262, 3354, 6, 3}, {7268, 264, 7, 2}, {7275, 188, 6, 2}, {7281, 188, 7, 2},
    {7288, 256, 6, 2}, {7294, 3351, 6, 3}, {7300, 3357, 8, 3}, {7308, 260, 5, 2}, {7313, 94, 5, 2}, {7318, 94, 6, 2},
    {7324, 3098, 8, 3}, {7332, 50, 4, 2}, {7336, 50, 5, 2}, {7341, 92, 10, 2}, {7351, 4098, 4, 4}, {7355, 760, 5, 2},
    {7360, 2655, 6, 3}, {7366, 2655, 10, 3}, {7376, 596, 4, 2}, {7380, 2592, 4, 3}, {7384, 3140, 5, 3}, {7389, 486, 5, 2},
    {7394, 1667, 7, 3}, {7401, 1240, 16, 3}, {7417, 1243, 17, 3}, {7434, 74, 9, 2}, {7443, 2400, 9, 3}, {7452, 1966, 11, 3},
    {7463, 1963, 12, 3}, {7475, 1969, 12, 3}, {7487, 1667, 5, 3}, {7492, 3222, 9, 3}, {7501, 3803, 7, 3}, {7508, 3137, 8, 3},
    {7516, 2634, 6, 3}, {7522, 2634, 9, 3}, {7531, 16, 6, 1}, {7537, 1658, 7, 3}, {7544, 1658, 8, 3}, {7552, 13, 6, 1},
    {7558, 34, 7, 1}, {7565, 1366, 5, 3}, {7570, 1425, 7, 3}, {7577, 1366, 11, 3}, {7588, 965, 10, 3}, {7598, 1587, 5, 3},
    {7603, 3399, 8, 3}, {7611, 1500, 7, 3}, {7618, 4278, 5, 4}, {7623, 1404, 7, 3}, {7630, 64, 4, 2}, {7634, 64, 5, 2},
    {7639, 1007, 7, 3}, {7646, 1231, 6, 3}, {7652, 2658, 6, 3}, {7658, 3922, 5, 4}, {7663, 3737, 5, 3}, {7668, 3743, 6, 3},
    {7674, 3740, 5, 3}, {7679, 3746, 6, 3}, {7685, 2228, 6, 3}, {7691, 2834, 8, 3}, {7699, 2825, 8, 3}, {7707, 2183, 6, 3},
    {7713, 2186, 6, 3}, {7719, 1234, 7, 3}, {7726, 2843, 8, 3}, {7734, 1482, 4, 3}, {7738, 3339, 9, 3}, {7747, 3333, 7, 3},
    {7754, 3345, 7, 3}, {7761, 1902, 7, 3}, {7768, 3330, 6, 3}, {7774, 1485, 5, 6}, {7779, 1237, 7, 3}, {7786, 2840, 8, 3},
    {7794, 2183, 12, 3}, {7806, 2186, 12, 3}, {7818, 2119, 9, 3}, {7827, 2122, 11, 3}, {7838, 54, 6, 2}, {7844, 54, 7, 2},
    {7851, 1234, 15, 3}, {7866, 1237, 16, 3}, {7882, 2119, 6, 3}, {7888, 2122, 6, 3}, {7894, 1512, 9, 3}, {7903, 1509, 6, 3},
    {7909, 2346, 7, 3}, {7916, 1315, 5, 3}, {7921, 2930, 5, 3}, {7926, 878, 7, 3}, {7933, 1076, 7, 3}, {7940, 1136, 5, 3},
    {7945, 845, 5, 3}, {7950, 1987, 6, 3}, {7956, 2751, 8, 3}, {7964, 500, 6, 2}, {7970, 268, 7, 2}, {7977, 722, 4, 2},
    {7981, 1082, 3, 3}, {7984, 881, 8, 3}, {7992, 1288, 6, 3}, {7998, 3436, 8, 3}, {8006, 78, 3, 2}, {8009, 78, 4, 2},
    {8013, 558, 6, 2}, {8019, 3095, 8, 3}, {8027, 3002, 7, 3}, {8034, 4102, 4, 4}, {8038, 1267, 6, 3}, {8044, 1264, 6, 3},
    {8050, 2089, 5, 3}, {8055, 2089, 8, 3}, {8063, 2640, 12, 3}, {8075, 2640, 6, 3}, {8081, 62, 4, 2}, {8085, 612, 8, 2},
    {8093, 2237, 6, 3}, {8099, 220, 4, 2}, {8103, 220, 6, 2}, {8109, 220, 7, 2}, {8116, 2098, 14, 3}, {8130, 2098, 7, 3},
    {8137, 780, 5, 2}, {8142, 2334, 7, 3}, {8149, 2304, 7, 3}, {8156, 5, 7, 1}, {8163, 4282, 5, 4}, {8168, 492, 4, 2},
    {8172, 1641, 6, 3}, {8178, 1649, 9, 3}, {8187, 1530, 9, 3}, {8196, 1416, 8, 3}, {8204, 1981, 10, 3}, {8214, 2286, 15, 3},
    {8229, 1136, 10, 3}, {8239, 1288, 15, 3}, {8254, 1267, 16, 3}, {8270, 1264, 17, 3}, {8287, 2754, 9, 3}, {8296, 2337, 7, 3},
    {8303, 2301, 7, 3}, {8310, 3926, 5, 4}, {8315, 786, 5, 2}, {8320, 3198, 5, 3}, {8325, 272, 7, 2}, {8332, 2234, 6, 3},
    {8338, 2580, 5, 3}, {8343, 2577, 6, 3}, {8349, 1351, 6, 3}, {8355, 2960, 6, 3}, {8361, 3062, 8, 3}, {8369, 804, 5, 2},
    {8374, 2727, 9, 3}, {8383, 3436, 6, 3}, {8389, 1649, 5, 3}, {8394, 192, 6, 2}, {8400, 192, 7, 2}, {8407, 3407, 7, 3},
    {8414, 288, 7, 2}, {8421, 1664, 5, 3}, {8426, 194, 5, 2}, {8431, 194, 6, 2}, {8437, 1661, 7, 3}, {8444, 772, 4, 2},
    {8448, 280, 5, 2}, {8453, 1085, 3, 3}, {8456, 1652, 6, 3}, {8462, 4106, 4, 4}, {8466, 3551, 3, 3}, {8469, 190, 6, 2},
    {8475, 190, 7, 2}, {8482, 3539, 4, 3}, {8486, 3545, 7, 3}, {8493, 3548, 3, 3}, {8496, 2394, 9, 3}, {8505, 998, 4, 3},
    {8509, 3536, 4, 3}, {8513, 3542, 7, 3}, {8520, 276, 6, 2}, {8526, 1383, 6, 3}, {8532, 1383, 9, 3}, {8541, 1383, 7, 3},
    {8548, 812, 7, 3}, {8555, 815, 7, 3}, {8562, 809, 5, 3}, {8567, 378, 4, 2}, {8571, 806, 5, 3}, {8576, 284, 6, 2},
    {8582, 4286, 5, 4}, {8587, 2140, 5, 3}, {8592, 3183, 7, 3}, {8599, 3421, 6, 3}, {8605, 560, 5, 2}, {8610, 560, 8, 2},
    {8618, 618, 6, 2}, {8624, 1664, 7, 3}, {8631, 1661, 8, 3}, {8639, 1573, 6, 3}, {8645, 3539, 11, 3}, {8656, 3536, 12, 3},
    {8668, 23, 7, 1}, {8675, 1679, 7, 3}, {8682, 1685, 6, 3}, {8688, 3439, 8, 3}, {8696, 3189, 9, 3}, {8705, 1655, 6, 3},
    {8711, 2966, 6, 3}, {8717, 1052, 5, 3}, {8722, 1641, 6, 3}, {8728, 1573, 5, 3}, {8733, 564, 4, 2}, {8737, 206, 3, 2},
    {8740, 206, 4, 2}, {8744, 196, 4, 2}, {8748, 196, 5, 2}, {8753, 956, 5, 3}, {8758, 2, 5, 1}, {8763, 1377, 6, 3},
    {8769, 1055, 12, 3}, {8781, 1085, 13, 3}, {8794, 1652, 14, 3}, {8808, 754, 4, 2}, {8812, 2625, 7, 3}, {8819, 3836, 7, 3},
    {8826, 3827, 6, 3}, {8832, 3839, 7, 3}, {8839, 4110, 4, 4}, {8843, 3830, 6, 3}, {8849, 41, 6, 2}, {8855, 2646, 5, 3},
    {8860, 3833, 6, 3}, {8866, 2556, 6, 3}, {8872, 478, 5, 2}, {8877, 4290, 5, 4}, {8882, 1363, 7, 3}, {8889, 2137, 5, 3},
    {8894, 3767, 6, 3}, {8900, 3219, 9, 3}, {8909, 104, 6, 2}, {8915, 104, 7, 2}, {8922, 1091, 7, 3}, {8929, 102, 6, 2},
    {8935, 102, 7, 2}, {8942, 1097, 7, 3}, {8949, 1109, 7, 3}, {8956, 1115, 7, 3}, {8963, 1094, 7, 3}, {8970, 1100, 7, 3},
    {8977, 106, 6, 2}, {8983, 106, 7, 2}, {8990, 1103, 7, 3}, {8997, 1118, 7, 3}, {9004, 1106, 7, 3}, {9011, 1112, 7, 3},
    {9018, 1121, 7, 3}, {9025, 1124, 7, 3}, {9032, 926, 6, 3}, {9038, 2340, 6, 3}, {9044, 3930, 5, 4}, {9049, 1723, 3, 3},
    {9052, 3509, 4, 3}, {9056, 482, 7, 2}, {9063, 556, 6, 2}, {9069, 612, 7, 2}, {9076, 3491, 4, 3}, {9080, 296, 7, 2},
    {9087, 292, 6, 2}, {9093, 720, 4, 2}, {9097, 300, 5, 2}, {9102, 1706, 3, 3}, {9105, 2174, 4, 3}, {9109, 1706, 4, 3},
    {9113, 1723, 5, 3}, {9118, 3462, 9, 3}, {9127, 3462, 4, 3}, {9131, 3597, 6, 3}, {9137, 3473, 7, 3}, {9144, 3479, 8, 3},
    {9152, 3485, 9, 3}, {9161, 2177, 5, 6}, {9166, 3533, 7, 3}, {9173, 4114, 4, 4}, {9177, 1763, 3, 3}, {9180, 2157, 4, 3},
    {9184, 1073, 6, 3}, {9190, 782, 5, 2}, {9195, 1810, 3, 3}, {9198, 3527, 4, 3}, {9202, 3585, 4, 3}, {9206, 3582, 4, 3},
    {9210, 1740, 4, 3}, {9214, 3503, 5, 3}, {9219, 3503, 9, 3}, {9228, 3497, 4, 3}, {9232, 3497, 5, 3}, {9237, 1740, 6, 3},
    {9243, 2204, 6, 3}, {9249, 4294, 5, 4}, {9254, 40, 6, 1}, {9260, 971, 5, 3}, {9265, 1798, 5, 3}, {9270, 3515, 6, 3},
    {9276, 3521, 6, 3}, {9282, 28, 2, 1}, {9284, 28, 3, 1}, {9287, 3591, 5, 3}, {9292, 3445, 6, 3}, {9298, 2146, 6, 3},
    {9304, 3041, 7, 3}, {9311, 3451, 8, 3}, {9319, 3491, 10, 3}, {9329, 2984, 7, 3}, {9336, 2146, 7, 3}, {9343, 2174, 10, 3},
    {9353, 3509, 11, 3}, {9364, 1810, 8, 3}, {9372, 1798, 7, 3}, {9379, 1743, 10, 6}, {9389, 1743, 5, 6}, {9394, 1318, 5, 3},
    {9399, 827, 7, 3}, {9406, 104, 5, 2}, {9411, 974, 7, 3}, {9418, 766, 7, 2}, {9425, 1139, 5, 3}, {9430, 2849, 8, 3},
    {9438, 1213, 6, 3}, {9444, 986, 5, 3}, {9449, 306, 6, 2}, {9455, 2637, 7, 3}, {9462, 2637, 10, 3}, {9472, 890, 7, 3},
    {9479, 2059, 7, 3}, {9486, 4118, 4, 4}, {9490, 2799, 9, 3}, {9499, 2802, 9, 3}, {9508, 1360, 6, 3}, {9514, 1536, 7, 3},
    {9521, 1201, 14, 3}, {9535, 1204, 15, 3}, {9550, 4298, 5, 4}, {9555, 854, 7, 3}, {9562, 3934, 5, 4}, {9567, 986, 7, 3},
    {9574, 310, 7, 2}, {9581, 923, 7, 3}, {9588, 845, 7, 3}, {9595, 200, 6, 2}, {9601, 200, 7, 2}, {9608, 953, 3, 3}, {9611, 202, 5, 2},
    {9616, 202, 6, 2}, {9622, 730, 4, 2}, {9626, 724, 5, 2}, {9631, 48, 5, 2}, {9636, 48, 6, 2}, {9642, 1318, 4, 3}, {9646, 4122, 4, 4},
    {9650, 198, 6, 2}, {9656, 198, 7, 2}, {9663, 1088, 3, 3}, {9666, 3216, 7, 3}, {9673, 1497, 6, 3}, {9679, 3174, 7, 3},
    {9686, 1043, 6, 3}, {9692, 330, 6, 2}, {9698, 318, 6, 2}, {9704, 992, 6, 3}, {9710, 989, 9, 3}, {9719, 992, 9, 3},
    {9728, 326, 6, 2}, {9734, 2053, 5, 3}, {9739, 480, 6, 2}, {9745, 1389, 3, 3}, {9748, 968, 7, 3}, {9755, 1434, 6, 3},
    {9761, 3177, 9, 3}, {9770, 326, 7, 2}, {9777, 1491, 4, 3}, {9781, 2062, 7, 3}, {9788, 1034, 9, 3}, {9797, 2062, 9, 3},
    {9806, 3243, 9, 3}, {9815, 3312, 8, 3}, {9823, 778, 5, 2}, {9828, 322, 6, 2}, {9834, 4302, 5, 4}, {9839, 568, 5, 2},
    {9844, 3312, 6, 3}, {9850, 108, 6, 2}, {9856, 108, 7, 2}, {9863, 3938, 5, 4}, {9868, 1389, 5, 3}, {9873, 2260, 6, 3},
    {9879, 2246, 8, 3}, {9887, 2243, 6, 3}, {9893, 2240, 7, 3}, {9900, 1389, 6, 3}, {9906, 950, 3, 3}, {9909, 314, 7, 2},
    {9916, 788, 6, 2}, {9922, 204, 4, 2}, {9926, 204, 5, 2}, {9931, 334, 6, 2}, {9937, 732, 4, 2}, {9941, 4126, 4, 4},
    {9945, 484, 6, 2}, {9951, 4306, 5, 4}, {9956, 3942, 5, 4}, {9961, 792, 7, 2}, {9968, 784, 6, 2}, {9974, 570, 6, 2},
    {9980, 614, 7, 2}, {9987, 338, 7, 2}, {9994, 734, 4, 2}, {9998, 4130, 4, 4}, {10002, 340, 7, 2}, {10009, 756, 5, 2},
    {10014, 800, 5, 2}, {10019, 4310, 5, 4}, {10024, 3946, 5, 4}, {10029, 1336, 6, 3}, {10035, 1306, 5, 3}, {10040, 2775, 7, 3},
    {10047, 2748, 6, 3}, {10053, 1715, 3, 3}, {10056, 3506, 4, 3}, {10060, 2921, 5, 3}, {10065, 344, 7, 2}, {10072, 3104, 9, 3},
    {10081, 995, 7, 3}, {10088, 572, 7, 2}, {10095, 2688, 5, 3}, {10100, 3029, 6, 3}, {10106, 2688, 7, 3}, {10113, 3488, 4, 3},
    {10117, 68, 5, 2}, {10122, 68, 6, 2}, {10128, 1127, 5, 3}, {10133, 1345, 6, 3}, {10139, 2787, 8, 3}, {10147, 2781, 7, 3},
    {10154, 1201, 7, 3}, {10161, 1207, 7, 3}, {10168, 2837, 7, 3}, {10175, 2972, 8, 3}, {10183, 1183, 7, 3}, {10190, 3603, 4, 3},
    {10194, 2769, 7, 3}, {10201, 3615, 5, 3}, {10206, 3618, 6, 6}, {10212, 2742, 6, 3}, {10218, 2670, 6, 3}, {10224, 43, 7, 1},
    {10231, 35, 7, 1}, {10238, 3011, 6, 3}, {10244, 3023, 8, 3}, {10252, 3017, 8, 3}, {10260, 352, 7, 2}, {10267, 348, 7, 2},
    {10274, 2289, 6, 3}, {10280, 43, 5, 1}, {10285, 736, 4, 2}, {10289, 2828, 5, 3}, {10294, 869, 6, 3}, {10300, 875, 7, 3},
    {10307, 2936, 8, 3}, {10315, 2858, 9, 3}, {10324, 1225, 5, 3}, {10329, 1697, 3, 3}, {10332, 1127, 10, 3}, {10342, 1183, 14, 3},
    {10356, 1249, 16, 3}, {10372, 1246, 14, 3}, {10386, 1279, 15, 3}, {10401, 1139, 15, 3}, {10416, 1276, 16, 3}, {10432, 1291, 18, 3},
    {10450, 1213, 20, 3}, {10470, 2110, 15, 3}, {10485, 2165, 4, 3}, {10489, 1697, 4, 3}, {10493, 1715, 5, 3}, {10498, 3454, 9, 3},
    {10507, 3454, 4, 3}, {10511, 3594, 6, 3}, {10517, 3470, 7, 3}, {10524, 3476, 8, 3}, {10532, 3482, 9, 3}, {10541, 2168, 5, 6},
    {10546, 3530, 7, 3}, {10553, 3488, 11, 3}, {10564, 2143, 8, 3}, {10572, 2165, 10, 3}, {10582, 3506, 11, 3}, {10593, 1807, 8, 3},
    {10601, 1795, 8, 3}, {10609, 2993, 7, 3}, {10616, 2295, 7, 3}, {10623, 4134, 4, 4}, {10627, 1807, 3, 3}, {10630, 3524, 4, 3},
    {10634, 1249, 6, 3}, {10640, 1246, 6, 3}, {10646, 2945, 7, 3}, {10653, 2526, 6, 3}, {10659, 794, 5, 2}, {10664, 1749, 3, 3},
    {10667, 1279, 6, 3}, {10673, 2334, 9, 3}, {10682, 2948, 7, 3}, {10689, 2607, 6, 3}, {10695, 356, 7, 2}, {10702, 2364, 7, 3},
    {10709, 2364, 11, 3}, {10720, 1731, 4, 3}, {10724, 3500, 5, 3}, {10729, 3500, 9, 3}, {10738, 3494, 4, 3}, {10742, 3494, 5, 3},
    {10747, 1731, 6, 3}, {10753, 2201, 6, 3}, {10759, 2700, 6, 3}, {10765, 1354, 6, 3}, {10771, 2682, 6, 3}, {10777, 2706, 14, 3},
    {10791, 2712, 19, 3}, {10810, 2724, 11, 3}, {10821, 2709, 15, 3}, {10836, 1207, 14, 3}, {10850, 1210, 15, 3}, {10865, 3005, 6, 3},
    {10871, 4314, 5, 4}, {10876, 3270, 7, 3}, {10883, 3288, 8, 3}, {10891, 1422, 7, 3}, {10898, 39, 7, 1}, {10905, 2589, 4, 3},
    {10909, 2589, 8, 3}, {10917, 3192, 5, 3}, {10922, 9, 5, 1}, {10927, 3035, 7, 3}, {10934, 1276, 6, 3}, {10940, 2337, 9, 3},
    {10949, 1291, 6, 3}, {10955, 2954, 7, 3}, {10962, 839, 4, 3}, {10966, 2074, 6, 3}, {10972, 911, 7, 3}, {10979, 3950, 5, 4},
    {10984, 1219, 4, 3}, {10988, 1795, 5, 3}, {10993, 3512, 6, 3}, {10999, 3518, 6, 3}, {11005, 35, 5, 1}, {11010, 860, 6, 3},
    {11016, 866, 7, 3}, {11023, 360, 7, 2}, {11030, 18, 2, 1}, {11032, 18, 3, 1}, {11035, 3588, 5, 3}, {11040, 3442, 6, 3},
    {11046, 2143, 6, 3}, {11052, 2110, 7, 3}, {11059, 2104, 7, 3}, {11066, 2981, 7, 3}, {11073, 3448, 8, 3}, {11081, 3044, 7, 3},
    {11088, 2586, 5, 3}, {11093, 2032, 6, 3}, {11099, 2583, 6, 3}, {11105, 2855, 9, 3}, {11114, 2933, 8, 3}, {11122, 1734, 10, 6},
    {11132, 1734, 5, 6}, {11137, 1533, 6, 3}, {11143, 76, 4, 2}, {11147, 76, 5, 2}, {11152, 2628, 5, 3}, {11157, 2661, 5, 3},
    {11162, 2661, 8, 3}, {11170, 1195, 4, 3}, {11174, 1195, 7, 3}, {11181, 1198, 11, 3}, {11192, 1189, 11, 3}, {11203, 1192, 9, 3},
    {11212, 2553, 7, 3}, {11219, 3264, 7, 3}, {11226, 738, 4, 2}, {11230, 851, 6, 3}, {11236, 1449, 14, 3}, {11250, 4138, 4, 4},
    {11254, 1037, 4, 3}, {11258, 88, 5, 2}, {11263, 88, 6, 2}, {11269, 1455, 4, 3}, {11273, 11, 7, 1}, {11280, 3806, 7, 3},
    {11287, 92, 6, 2}, {11293, 92, 7, 2}, {11300, 1410, 6, 3}, {11306, 1975, 7, 3}, {11313, 1530, 7, 3}, {11320, 3267, 8, 3},
    {11328, 3773, 5, 3}, {11333, 890, 5, 3}, {11338, 1413, 7, 3}, {11345, 1996, 7, 3}, {11352, 4318, 5, 4}, {11357, 1413, 3, 3},
    {11360, 3954, 5, 4}, {11365, 1556, 7, 3}, {11372, 574, 3, 2}, {11375, 2056, 9, 3}, {11384, 2056, 6, 3}, {11390, 2160, 4, 5},
    {11394, 1771, 4, 6}, {11398, 1766, 5, 5}, {11403, 1297, 11, 3}, {11414, 1300, 16, 3}, {11430, 2152, 4, 5}, {11434, 1757, 4, 6},
    {11438, 1752, 5, 5}, {11443, 1303, 12, 3}, {11455, 2020, 7, 3}, {11462, 2017, 7, 3}, {11469, 1386, 6, 3}, {11475, 364, 7, 2},
    {11482, 1443, 5, 6}, {11487, 1599, 4, 3}, {11491, 3416, 5, 5}, {11496, 1608, 6, 5}, {11502, 374, 6, 2}, {11508, 1599, 8, 3},
    {11516, 2649, 6, 3}, {11522, 2649, 8, 3}, {11530, 1001, 9, 3}, {11539, 46, 4, 2}, {11543, 46, 5, 2}, {11548, 1628, 6, 5},
    {11554, 1636, 7, 5}, {11561, 3324, 5, 3}, {11566, 372, 7, 2}, {11573, 368, 7, 2}, {11580, 1593, 6, 3}, {11586, 3402, 9, 5},
    {11595, 3321, 5, 3}, {11600, 740, 4, 2}, {11604, 848, 6, 3}, {11610, 1682, 3, 3}, {11613, 1327, 6, 3}, {11619, 2796, 7, 3},
    {11626, 1148, 6, 3}, {11632, 1148, 8, 3}, {11640, 1644, 6, 5}, {11646, 1694, 7, 3}, {11653, 2808, 7, 3}, {11660, 1576, 6, 5},
    {11666, 1380, 7, 3}, {11673, 1380, 8, 3}, {11681, 4142, 4, 4}, {11685, 1726, 4, 5}, {11689, 1792, 4, 3}, {11693, 1792, 5, 3},
    {11698, 1726, 6, 5}, {11704, 3465, 10, 5}, {11714, 3465, 5, 5}, {11719, 1804, 6, 3}, {11725, 1786, 4, 3}, {11729, 1786, 5, 3},
    {11734, 1300, 6, 3}, {11740, 1216, 6, 3}, {11746, 3812, 6, 3}, {11752, 1395, 3, 3}, {11755, 2274, 4, 3}, {11759, 2268, 5, 3},
    {11764, 1395, 4, 3}, {11768, 796, 5, 2}, {11773, 1297, 6, 3}, {11779, 1718, 4, 5}, {11783, 1157, 6, 3}, {11789, 887, 5, 3},
    {11794, 1789, 4, 3}, {11798, 1157, 11, 3}, {11809, 1216, 16, 3}, {11825, 1789, 5, 3}, {11830, 1718, 6, 5}, {11836, 3457, 10, 5},
    {11846, 3457, 5, 5}, {11851, 1783, 6, 3}, {11857, 1801, 6, 3}, {11863, 1783, 4, 3}, {11867, 2213, 6, 3}, {11873, 2219, 7, 3},
    {11880, 1458, 5, 3}, {11885, 4322, 5, 4}, {11890, 70, 3, 2}, {11893, 70, 4, 2}, {11897, 1392, 6, 3}, {11903, 2263, 7, 5},
    {11910, 2249, 9, 5}, {11919, 1392, 8, 3}, {11927, 2257, 8, 3}, {11935, 2254, 8, 3}, {11943, 1398, 6, 3}, {11949, 1398, 8, 3},
    {11957, 2280, 8, 3}, {11965, 2277, 8, 3}, {11973, 1464, 5, 3}, {11978, 1464, 10, 3}, {11988, 3821, 7, 6}, {11995, 1372, 6, 5},
    {12001, 3234, 8, 3}, {12009, 1842, 4, 3}, {12013, 2189, 7, 3}, {12020, 3630, 5, 5}, {12025, 1842, 6, 3}, {12031, 3630, 8, 5},
    {12039, 1303, 6, 3}, {12045, 1160, 6, 3}, {12051, 2820, 7, 5}, {12058, 1166, 7, 5}, {12065, 1160, 12, 3}, {12077, 2216, 6, 3},
    {12083, 2222, 7, 3}, {12090, 1845, 4, 3}, {12094, 2192, 7, 3}, {12101, 3638, 5, 5}, {12106, 3958, 5, 4}, {12111, 1458, 10, 3},
    {12121, 1464, 15, 3}, {12136, 1570, 5, 3}, {12141, 1584, 6, 3}, {12147, 1584, 7, 3}, {12154, 1458, 6, 3}, {12160, 1464, 6, 3},
    {12166, 2195, 8, 3}, {12174, 2198, 8, 3}, {12182, 1866, 5, 3}, {12187, 3700, 6, 5}, {12193, 1878, 6, 3}, {12199, 1851, 8, 6},
    {12207, 1878, 10, 3}, {12217, 3700, 11, 5}, {12228, 1845, 6, 3}, {12234, 3638, 8, 5}, {12242, 1869, 5, 3}, {12247, 3708, 6, 5},
    {12253, 1881, 6, 3}, {12259, 1860, 8, 6}, {12267, 1881, 10, 3}, {12277, 3708, 11, 5}, {12288, 1816, 5, 3}, {12293, 208, 6, 2},
    {12299, 208, 7, 2}, {12306, 1813, 5, 3}, {12311, 2213, 14, 3}, {12325, 2219, 16, 3}, {12341, 2216, 15, 3}, {12356, 2222, 17, 3},
    {12373, 576, 3, 2}, {12376, 4, 4, 1}, {12380, 1004, 7, 3}, {12387, 818, 6, 3}, {12393, 2014, 7, 3}, {12400, 2736, 7, 3},
    {12407, 1619, 5, 6}, {12412, 2011, 7, 3}, {12419, 1709, 5, 6}, {12424, 29, 5, 4}, {12429, 3180, 8, 3}, {12437, 2730, 7, 3},
    {12444, 1700, 5, 6}, {12449, 19, 5, 4}, {12454, 2035, 8, 6}, {12462, 2733, 7, 3}, {12469, 2044, 8, 6}, {12477, 1542, 6, 6},
    {12483, 1324, 6, 3}, {12489, 2793, 7, 3}, {12496, 1145, 6, 3}, {12502, 1145, 8, 3}, {12510, 2805, 7, 3}, {12517, 2400, 3, 3},
    {12520, 212, 6, 2}, {12526, 212, 7, 2}, {12533, 1966, 5, 3}, {12538, 1963, 5, 3}, {12543, 214, 5, 2}, {12548, 214, 6, 2},
    {12554, 742, 4, 2}, {12558, 1969, 6, 3}, {12564, 386, 7, 2}, {12571, 3300, 5, 3}, {12576, 1960, 5, 3}, {12581, 3122, 7, 3},
    {12588, 390, 6, 2}, {12594, 3128, 6, 3}, {12600, 4146, 4, 4}, {12604, 496, 5, 2}, {12609, 210, 6, 2}, {12615, 210, 7, 2},
    {12622, 3134, 4, 3}, {12626, 3107, 6, 3}, {12632, 550, 4, 2}, {12636, 1500, 5, 3}, {12641, 1240, 6, 3}, {12647, 3125, 6, 3},
    {12653, 3119, 8, 3}, {12661, 917, 6, 3}, {12667, 3131, 4, 3}, {12671, 382, 6, 2}, {12677, 600, 6, 2}, {12683, 580, 8, 2},
    {12691, 3110, 5, 3}, {12696, 1951, 7, 3}, {12703, 4326, 5, 4}, {12708, 3113, 5, 3}, {12713, 3116, 6, 3}, {12719, 1948, 6, 3},
    {12725, 1470, 3, 3}, {12728, 1243, 6, 3}, {12734, 3387, 4, 3}, {12738, 1064, 6, 3}, {12744, 1064, 8, 3}, {12752, 66, 4, 2},
    {12756, 66, 5, 2}, {12761, 98, 4, 2}, {12765, 98, 5, 2}, {12770, 2050, 7, 3}, {12777, 3369, 5, 3}, {12782, 3372, 8, 3},
    {12790, 3381, 4, 3}, {12794, 1064, 5, 3}, {12799, 222, 6, 2}, {12805, 222, 7, 2}, {12812, 1957, 5, 3}, {12817, 216, 6, 2},
    {12823, 216, 7, 2}, {12830, 1954, 7, 3}, {12837, 3294, 9, 3}, {12846, 218, 4, 2}, {12850, 218, 5, 2}, {12855, 2355, 6, 3},
    {12861, 1461, 4, 3}, {12865, 90, 4, 2}, {12869, 90, 5, 2}, {12874, 1461, 9, 3}, {12883, 3815, 7, 3}, {12890, 3818, 6, 3},
    {12896, 1369, 5, 3}, {12901, 744, 4, 2}, {12905, 6, 7, 1}, {12912, 14, 7, 1}, {12919, 893, 7, 3}, {12926, 1993, 5, 3},
    {12931, 896, 8, 3}, {12939, 4150, 4, 4}, {12943, 594, 4, 2}, {12947, 606, 5, 2}, {12952, 1061, 7, 3}, {12959, 2622, 6, 3},
    {12965, 582, 3, 2}, {12968, 2137, 10, 3}, {12978, 608, 4, 2}, {12982, 986, 7, 3}, {12989, 983, 8, 3}, {12997, 986, 7, 3},
    {13004, 12, 5, 1}, {13009, 3249, 9, 3}, {13018, 1972, 6, 3}, {13024, 3246, 8, 3}, {13032, 1416, 7, 3}, {13039, 3255, 7, 3},
    {13046, 3424, 6, 3}, {13052, 80, 6, 2}, {13058, 80, 7, 2}, {13065, 3258, 8, 3}, {13073, 3261, 8, 3}, {13081, 80, 3, 2},
    {13084, 3237, 9, 3}, {13093, 4330, 5, 4}, {13098, 52, 5, 2}, {13103, 52, 6, 2}, {13109, 1819, 3, 3}, {13112, 3643, 4, 3},
    {13116, 3655, 5, 3}, {13121, 1825, 6, 3}, {13127, 3627, 4, 3}, {13131, 1819, 5, 3}, {13136, 3655, 11, 3}, {13147, 1825, 12, 3},
    {13159, 3627, 7, 3}, {13166, 3661, 12, 3}, {13178, 3649, 9, 3}, {13187, 2207, 9, 3}, {13196, 1831, 8, 3}, {13204, 899, 6, 3},
    {13210, 1013, 7, 3}, {13217, 3649, 5, 3}, {13222, 3661, 6, 3}, {13228, 2207, 7, 3}, {13235, 1401, 5, 3}, {13240, 2349, 9, 3},
    {13249, 2316, 9, 3}, {13258, 2319, 9, 3}, {13267, 1431, 5, 3}, {13272, 1431, 7, 3}, {13279, 1831, 6, 3}, {13285, 2023, 7, 3},
    {13292, 3962, 5, 4}, {13297, 598, 4, 2}, {13301, 821, 7, 3}, {13308, 4154, 4, 4}, {13312, 3216, 5, 3}, {13317, 4334, 5, 4},
    {13322, 932, 7, 3}, {13329, 3966, 5, 4}, {13334, 980, 12, 3}, {13346, 3240, 8, 3}, {13354, 33, 6, 1}, {13360, 1679, 8, 3},
    {13368, 3, 4, 1}, {13372, 3, 5, 1}, {13377, 1339, 6, 3}, {13383, 1312, 5, 3}, {13388, 2778, 7, 3}, {13395, 2751, 6, 3},
    {13401, 2927, 5, 3}, {13406, 1551, 5, 5}, {13411, 394, 7, 2}, {13418, 1428, 6, 3}, {13424, 3101, 9, 3}, {13433, 2691, 5, 3},
    {13438, 3032, 6, 3}, {13444, 3059, 6, 3}, {13450, 2691, 7, 3}, {13457, 100, 5, 2}, {13462, 100, 6, 2}, {13468, 1133, 5, 3},
    {13473, 2978, 7, 3}, {13480, 1348, 6, 3}, {13486, 2790, 8, 3}, {13494, 2817, 6, 3}, {13500, 2784, 7, 3}, {13507, 1204, 7, 3},
    {13514, 1210, 7, 3}, {13521, 2846, 7, 3}, {13528, 2975, 8, 3}, {13536, 1186, 7, 3}, {13543, 1163, 6, 3}, {13549, 2772, 7, 3},
    {13556, 1524, 6, 3}, {13562, 1016, 10, 3}, {13572, 2745, 6, 3}, {13578, 2673, 6, 3}, {13584, 45, 7, 1}, {13591, 37, 7, 1},
    {13598, 3014, 6, 3}, {13604, 3020, 8, 3}, {13612, 3026, 8, 3}, {13620, 402, 7, 2}, {13627, 398, 7, 2}, {13634, 2292, 6, 3},
    {13640, 45, 5, 1}, {13645, 746, 4, 2}, {13649, 2831, 5, 3}, {13654, 2942, 8, 3}, {13662, 872, 6, 3}, {13668, 872, 7, 3},
    {13675, 1228, 5, 3}, {13680, 1022, 5, 3}, {13685, 1019, 8, 3}, {13693, 1022, 9, 3}, {13702, 1025, 6, 3}, {13708, 2550, 5, 3},
    {13713, 74, 3, 2}, {13716, 74, 4, 2}, {13720, 2996, 7, 3}, {13727, 2298, 7, 3}, {13734, 4158, 4, 4}, {13738, 1261, 6, 3},
    {13744, 1258, 6, 3}, {13750, 2951, 7, 3}, {13757, 584, 4, 2}, {13761, 616, 5, 2}, {13766, 1133, 11, 3}, {13777, 1186, 15, 3},
    {13792, 1261, 17, 3}, {13809, 1258, 15, 3}, {13824, 1270, 16, 3}, {13840, 1294, 18, 3}, {13858, 1285, 17, 3}, {13875, 1163, 16, 3},
    {13891, 2113, 16, 3}, {13907, 494, 5, 2}, {13912, 1655, 13, 3}, {13925, 1270, 6, 3}, {13931, 1294, 6, 3}, {13937, 842, 4, 3},
    {13941, 2367, 7, 3}, {13948, 2367, 11, 3}, {13959, 3800, 6, 3}, {13965, 2703, 6, 3}, {13971, 1357, 6, 3}, {13977, 2685, 6, 3},
    {13983, 3008, 6, 3}, {13989, 4338, 5, 4}, {13994, 3273, 7, 3}, {14001, 3291, 8, 3}, {14009, 10, 5, 1}, {14014, 3038, 7, 3},
    {14021, 3228, 9, 3}, {14030, 1285, 6, 3}, {14036, 914, 7, 3}, {14043, 3970, 5, 4}, {14048, 1222, 4, 3}, {14052, 37, 5, 1},
    {14057, 863, 6, 3}, {14063, 863, 7, 3}, {14070, 2113, 7, 3}, {14077, 2107, 7, 3}, {14084, 2571, 5, 3}, {14089, 2041, 6, 3},
    {14095, 2568, 6, 3}, {14101, 3155, 9, 3}, {14110, 2939, 8, 3}, {14118, 1028, 3, 3}, {14121, 406, 7, 2}, {14128, 866, 6, 3},
    {14134, 1822, 3, 3}, {14137, 3646, 4, 3}, {14141, 3658, 5, 3}, {14146, 418, 7, 2}, {14153, 1828, 6, 3}, {14159, 3635, 4, 3},
    {14163, 414, 7, 2}, {14170, 410, 6, 2}, {14176, 3652, 5, 3}, {14181, 3664, 6, 3}, {14187, 2210, 7, 3}, {14194, 3231, 9, 3},
    {14203, 1834, 6, 3}, {14209, 748, 4, 2}, {14213, 2092, 5, 3}, {14218, 1981, 6, 3}, {14224, 3393, 6, 3}, {14230, 1330, 6, 3},
    {14236, 2799, 7, 3}, {14243, 1151, 6, 3}, {14249, 1151, 8, 3}, {14257, 60, 4, 2}, {14261, 60, 5, 2}, {14266, 17, 5, 1},
    {14271, 2811, 7, 3}, {14278, 1419, 9, 3}, {14287, 1419, 6, 3}, {14293, 2664, 5, 3}, {14298, 4162, 4, 4}, {14302, 2340, 7, 3},
    {14309, 2652, 6, 3}, {14315, 764, 7, 2}, {14322, 762, 5, 2}, {14327, 1455, 9, 3}, {14336, 1461, 14, 3}, {14350, 72, 3, 2},
    {14353, 72, 4, 2}, {14357, 588, 6, 2}, {14363, 586, 7, 2}, {14370, 586, 7, 2}, {14377, 1539, 4, 3}, {14381, 3396, 7, 3},
    {14388, 1581, 5, 3}, {14393, 1581, 6, 3}, {14399, 3557, 5, 3}, {14404, 3563, 6, 3}, {14410, 3554, 5, 3}, {14415, 3560, 6, 3},
    {14421, 1590, 6, 3}, {14427, 3252, 8, 3}, {14435, 2969, 8, 3}, {14443, 1127, 6, 3}, {14449, 1419, 14, 3}, {14463, 3285, 7, 3},
    {14470, 3186, 9, 3}, {14479, 1455, 5, 3}, {14484, 2343, 6, 3}, {14490, 3600, 4, 3}, {14494, 3606, 5, 3}, {14499, 3609, 6, 6},
    {14505, 770, 7, 2}, {14512, 15, 4, 1}, {14516, 3143, 5, 3}, {14521, 2358, 7, 3}, {14528, 4342, 5, 4}, {14533, 2631, 7, 3},
    {14540, 2631, 10, 3}, {14550, 1461, 5, 3}, {14555, 1930, 6, 3}, {14561, 1933, 7, 6}, {14568, 1939, 6, 3}, {14574, 1942, 7, 6},
    {14581, 1908, 6, 3}, {14587, 1924, 7, 3}, {14594, 1908, 9, 3}, {14603, 1924, 11, 3}, {14614, 1916, 6, 3}, {14620, 1927, 7, 3},
    {14627, 1916, 9, 3}, {14636, 1927, 11, 3}, {14647, 2541, 4, 3}, {14651, 2541, 7, 3}, {14658, 2544, 7, 3}, {14665, 2544, 5, 3},
    {14670, 1133, 6, 3}, {14676, 3974, 5, 4}, {14681, 1419, 7, 3}, {14688, 2343, 7, 3}, {14695, 2095, 7, 3}, {14702, 2619, 5, 3},
    {14707, 2616, 6, 3}, {14713, 618, 16, 2}, {14729, 606, 12, 2}, {14741, 76, 6, 2}, {14747, 1848, 4, 3}, {14751, 3697, 5, 3},
    {14756, 3673, 7, 3}, {14763, 1872, 5, 3}, {14768, 3691, 8, 3}, {14776, 3685, 8, 3}, {14784, 3719, 6, 3}, {14790, 1884, 6, 3},
    {14796, 3679, 8, 3}, {14804, 2987, 8, 3}, {14812, 1848, 7, 3}, {14819, 1872, 9, 3}, {14828, 3697, 10, 3}, {14838, 1884, 10, 3},
    {14848, 3719, 11, 3}, {14859, 3713, 7, 3}, {14866, 3755, 7, 3}, {14873, 3749, 7, 3}, {14880, 1822, 5, 3}, {14885, 3658, 11, 3},
    {14896, 1828, 12, 3}, {14908, 3635, 7, 3}, {14915, 3664, 12, 3}, {14927, 3652, 9, 3}, {14936, 2210, 9, 3}, {14945, 1834, 8, 3},
    {14953, 1407, 4, 3}, {14957, 2643, 5, 3}, {14962, 96, 4, 2}, {14966, 96, 5, 2}, {14971, 82, 4, 2}, {14975, 82, 5, 2},
    {14980, 84, 4, 2}, {14984, 84, 5, 2}, {14989, 1857, 4, 3}, {14993, 3705, 5, 3}, {14998, 3676, 7, 3}, {15005, 3764, 8, 3},
    {15013, 1875, 5, 3}, {15018, 3694, 8, 3}, {15026, 2679, 8, 3}, {15034, 3761, 8, 3}, {15042, 2990, 8, 3}, {15050, 3688, 8, 3},
    {15058, 3728, 6, 3}, {15064, 1893, 6, 3}, {15070, 3682, 8, 3}, {15078, 1857, 7, 3}, {15085, 1875, 9, 3}, {15094, 3705, 10, 3},
    {15104, 1893, 10, 3}, {15114, 3728, 11, 3}, {15125, 3716, 7, 3}, {15132, 3752, 7, 3}, {15139, 3758, 7, 3}, {15146, 1333, 6, 3},
    {15152, 2802, 7, 3}, {15159, 1154, 6, 3}, {15165, 1154, 8, 3}, {15173, 2814, 7, 3}, {15180, 172, 5, 2}, {15185, 172, 6, 2},
    {15191, 2325, 7, 3}, {15198, 590, 4, 2}, {15202, 2370, 5, 3}, {15207, 426, 7, 2}, {15214, 422, 7, 2}, {15221, 750, 4, 2},
    {15225, 959, 5, 3}, {15230, 2322, 7, 3}, {15237, 4166, 4, 4}, {15241, 1518, 7, 3}, {15248, 1518, 10, 3}, {15258, 566, 6, 2},
    {15264, 602, 9, 2}, {15273, 602, 7, 2}, {15280, 1596, 12, 3}, {15292, 1539, 9, 3}, {15301, 824, 7, 3}, {15308, 1596, 6, 3},
    {15314, 1539, 7, 3}, {15321, 234, 5, 2}, {15326, 234, 6, 2}, {15332, 498, 6, 2}, {15338, 156, 5, 2}, {15343, 156, 6, 2},
    {15349, 1978, 7, 3}, {15356, 3282, 9, 3}, {15365, 3279, 7, 3}, {15372, 1497, 5, 3}, {15377, 2808, 5, 3}, {15382, 1990, 4, 3},
    {15386, 2352, 7, 3}, {15393, 3809, 7, 3}, {15400, 4346, 5, 4}, {15405, 3770, 8, 3}, {15413, 2811, 5, 3}, {15418, 905, 7, 3},
    {15425, 1031, 6, 3}, {15431, 2565, 9, 3}, {15440, 2580, 13, 3}, {15453, 2586, 13, 3}, {15466, 2032, 15, 3}, {15481, 1676, 10, 3},
    {15491, 2571, 14, 3}, {15505, 2041, 16, 3}, {15521, 2595, 7, 3}, {15528, 1676, 5, 3}, {15533, 3306, 9, 3}, {15542, 3303, 8, 3},
    {15550, 3152, 6, 3}, {15556, 3309, 8, 3}, {15564, 2391, 9, 3}, {15573, 3978, 5, 4}, {15578, 758, 5, 2}, {15583, 798, 6, 2},
    {15589, 430, 7, 2}, {15596, 1777, 6, 3}, {15602, 1171, 17, 3}, {15619, 1177, 18, 3}, {15637, 1309, 5, 3}, {15642, 2924, 5, 3},
    {15647, 226, 6, 2}, {15653, 226, 7, 2}, {15660, 1130, 5, 3}, {15665, 802, 6, 2}, {15671, 442, 7, 2}, {15678, 228, 5, 2},
    {15683, 228, 6, 2}, {15689, 752, 4, 2}, {15693, 1273, 6, 3}, {15699, 450, 7, 2}, {15706, 2957, 6, 3}, {15712, 2999, 7, 3},
    {15719, 4170, 4, 4}, {15723, 224, 6, 2}, {15729, 224, 7, 2}, {15736, 1255, 6, 3}, {15742, 1252, 6, 3}, {15748, 2523, 6, 3},
    {15754, 2328, 7, 3}, {15761, 2328, 9, 3}, {15770, 2310, 7, 3}, {15777, 2601, 6, 3}, {15783, 438, 6, 2}, {15789, 62, 3, 2},
    {15792, 62, 4, 2}, {15796, 454, 6, 2}, {15802, 4350, 5, 4}, {15807, 1130, 8, 3}, {15815, 1142, 12, 3}, {15827, 1255, 14, 3},
    {15841, 1252, 15, 3}, {15856, 1905, 6, 3}, {15862, 592, 5, 2}, {15867, 604, 6, 2}, {15873, 592, 8, 2}, {15881, 1282, 11, 3},
    {15892, 2331, 7, 3}, {15899, 2331, 9, 3}, {15908, 2307, 7, 3}, {15915, 446, 6, 2}, {15921, 2604, 6, 3}, {15927, 3982, 5, 4},
    {15932, 2231, 6, 3}, {15938, 434, 7, 2}, {15945, 2565, 5, 3}, {15950, 2562, 6, 3}, {15956, 1282, 6, 3}, {15962, 230, 4, 2},
    {15966, 230, 5, 2}, {15971, 3065, 8, 3}, {15979, 1321, 5, 3}, {15984, 3785, 5, 3}, {15989, 3788, 6, 3}, {15995, 1999, 6, 3},
    {16001, 3050, 7, 3}, {16008, 618, 11, 2}, {16019, 614, 9, 2}, {16028, 1383, 11, 3}, {16039, 606, 7, 2}, {16046, 608, 6, 2},
    {16052, 1431, 10, 3}, {16062, 1142, 5, 3}, {16067, 616, 7, 2}, {16074, 586, 9, 2}, {16083, 1887, 13, 6}, {16096, 3722, 14, 6},
    {16110, 1896, 13, 6}, {16123, 3731, 14, 6}, {16137, 602, 9, 2}, {16146, 2026, 16, 3}, {16162, 2029, 17, 3}, {16179, 718, 4, 2},
    {16183, 1984, 6, 3}, {16189, 1470, 4, 3}, {16193, 2065, 7, 3}, {16200, 1673, 6, 3}, {16206, 2225, 7, 3}, {16213, 44, 7, 1},
    {16220, 44, 5, 1}, {16225, 4174, 4, 4}, {16229, 2026, 6, 3}, {16235, 1851, 6, 6}, {16241, 1860, 6, 6}, {16247, 4354, 5, 4},
    {16252, 1431, 6, 3}, {16258, 2029, 6, 3}, {16264, 3986, 5, 4}, {16269, 3722, 7, 6}, {16276, 1887, 7, 6}, {16283, 3731, 7, 6},
    {16290, 1896, 7, 6}, {16297, 3047, 8, 3}, {16305, 458, 6, 2}, {16311, 3390, 7, 3}, {16318, 1467, 6, 3}, {16324, 1670, 7, 3},
    {16331, 1010, 7, 3}, {16338, 4178, 4, 4}, {16342, 4358, 5, 4}, {16347, 1010, 3, 3}, {16350, 1567, 3, 3}, {16353, 1567, 7, 3},
    {16360, 3990, 5, 4}, {16365, 2083, 5, 3}, {16370, 2598, 6, 3}, {16376, 2086, 5, 3}, {16381, 2574, 6, 3}, {16387, 4182, 4, 4},
    {16391, 2721, 6, 3}, {16397, 2712, 6, 3}, {16403, 578, 3, 2}, {16406, 2715, 6, 3}, {16412, 2706, 6, 3}, {16418, 2724, 5, 3},
    {16423, 2271, 5, 3}, {16428, 3201, 6, 3}, {16434, 4362, 5, 4}, {16439, 3204, 7, 3}, {16446, 3207, 7, 3}, {16453, 2718, 6, 3},
    {16459, 2709, 6, 3}, {16465, 3994, 5, 4}, {16470, 3213, 7, 3}, {16477, 3210, 7, 3}, {16484, 2559, 6, 3}, {16490, 2080, 5, 3},
    {16495, 2077, 7, 3}, {16502, 232, 6, 2}, {16508, 232, 7, 2}, {16515, 776, 5, 2}, {16520, 462, 6, 2}, {16526, 768, 4, 2},
    {16530, 56, 3, 2}, {16533, 56, 4, 2}, {16537, 4186, 4, 4}, {16541, 790, 5, 2}, {16546, 4366, 5, 4}, {16551, 3998, 5, 4},
    {16556, 774, 5, 2}, {16561, 236, 4, 2}, {16565, 236, 5, 2}, {16570, 468, 7, 2}, {16577, 476, 7, 2}, {16584, 728, 4, 2},
    {16588, 472, 5, 2}, {16593, 1040, 7, 3}, {16600, 562, 5, 2}, {16605, 4190, 4, 4}, {16609, 726, 5, 2}, {16614, 1342, 8, 3},
    {16622, 4370, 5, 4}, {16627, 4002, 5, 4}, {16632, 836, 4, 3}, {16636, 833, 5, 3},
};

}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/LanguageSamples.h"

namespace platform {

namespace {

// Numbers as in TextEncodingTable.
constexpr std::uint32_t western[] = {12, 0x8000020F, 0x80000410, 30};

constexpr LanguageSample samples[] = {
    {"English", Writing::latin, western, "éèêëïçñöüâîôàá",
     R"(Good morning. Have you been waiting for us long?
Sit down, I’ll tell you everything from the beginning.
Suddenly we heard a scream and the light went out.
Nobody in the village wanted to believe us.
I must find out who killed my fiancé.
Take your coat, it’s terribly cold outside.
At home. I was watching television with my sister.
Put the gun down and raise your hands!
The doctor says she will live.
Not yet. She needs to rest — it’s late.
More than I can ever pay back.
The train leaves in five minutes, hurry up!
It’s too late. I’m marrying someone else.
He’s my father’s lawyer. Don’t trust him.
Nothing. I fell down the stairs.
Quiet! Somebody is coming.
A glass of water, please, and the entrée.
Eighty-seven, and I still dance.
They’ve stolen our car again.
Tomorrow we’ll go to the sea with the children.
I’m sorry, I didn’t want to hurt you.
Why are you crying, little one?
Come with me, we’ll look for her together.
Nobody must know that we met here.
My grandfather built this house with his own hands.
I don’t want your money, I want the truth.
You’re fired. Pack your things.
Welcome home, son. We missed you.
Good night. Sleep well and don’t think about it.
Everything will be all right, you’ll see.)"},
    {"French", Writing::latin, western, "àâçèéêëîïôùûüÿœæ",
     R"(Bonjour. Vous nous attendez depuis longtemps ?
Asseyez-vous, je vais tout vous raconter depuis le début.
Soudain, on a entendu un cri et la lumière s’est éteinte.
Personne au village n’a voulu nous croire.
Je dois découvrir qui a tué mon frère.
Prends ton manteau, il fait très froid dehors.
À la maison. Je regardais la télé avec ma sœur.
Posez cette arme et levez les mains !
Le médecin dit qu’elle vivra.
Pas encore. Elle a besoin de se reposer.
Plus que je ne pourrai jamais rembourser.
Le train part dans cinq minutes, dépêche-toi !
C’est trop tard. J’épouse quelqu’un d’autre.
C’est l’avocat de mon père. Ne lui fais pas confiance.
Rien. Je suis tombé dans l’escalier.
Silence ! Quelqu’un vient.
Un verre d’eau, s’il vous plaît.
Quatre-vingt-sept ans, et je danse encore.
Ils nous ont encore volé la voiture.
Demain, nous irons à la mer avec les enfants.
Je suis désolé, je ne voulais pas te blesser.
Pourquoi est-ce que tu pleures, petite ?
Viens avec moi, on va la chercher ensemble.
Personne ne doit savoir que nous nous sommes rencontrés ici.
Mon grand-père a bâti cette maison de ses propres mains.
Je ne veux pas de votre argent, je veux la vérité.
Vous êtes renvoyé. Ramassez vos affaires.
Bienvenue chez toi, mon fils. Tu nous as manqué.
Bonne nuit. Dors bien et n’y pense plus.
Tout ira bien, tu verras. Même là-bas.)"},
    {"German", Writing::latin, western, "äöüß",
     R"(Guten Morgen. Warten Sie schon lange auf uns?
Setzen Sie sich, ich erzähle Ihnen alles von Anfang an.
Plötzlich hörten wir einen Schrei, und das Licht ging aus.
Niemand im Dorf wollte uns glauben.
Ich muss herausfinden, wer meinen Bruder getötet hat.
Nimm deinen Mantel, draußen ist es schrecklich kalt.
Zu Hause. Ich habe mit meiner Schwester ferngesehen.
Legen Sie die Waffe weg und nehmen Sie die Hände hoch!
Der Arzt sagt, sie wird überleben.
Noch nicht. Sie muss sich ausruhen, hören Sie?
Mehr, als ich je zurückzahlen könnte.
Der Zug fährt in fünf Minuten, beeil dich!
Es ist zu spät. Ich heirate einen anderen.
Er ist der Anwalt meines Vaters. Trau ihm nicht.
Nichts. Ich bin die Treppe hinuntergefallen.
Still! Da kommt jemand die Straße herauf.
Ein Glas Wasser, bitte schön.
Siebenundachtzig, und ich tanze immer noch für euch.
Die haben schon wieder unser Auto gestohlen.
Morgen fahren wir mit den Kindern ans Meer.
Es tut mir leid, ich wollte dir nicht wehtun.
Warum weinst du denn, Kleine?
Komm mit, wir suchen sie zusammen. Natürlich!
Niemand darf wissen, dass wir uns hier getroffen haben.
Mein Großvater hat dieses Haus mit eigenen Händen gebaut.
Ich will nicht Ihr Geld, ich will die Wahrheit über früher.
Sie sind entlassen. Packen Sie Ihre Sachen.
Willkommen daheim, mein Sohn. Wir haben dich vermisst.
Gute Nacht. Schlaf schön und denk nicht mehr daran.
Alles wird gut, du wirst schon sehen. Ja, natürlich.)"},
    {"Spanish", Writing::latin, western, "áéíóúüñ",
     R"(Buenos días. ¿Llevan mucho tiempo esperándonos?
Siéntese, le voy a contar todo desde el principio.
De pronto oímos un grito y se apagó la luz.
Nadie en el pueblo quería creernos.
Tengo que averiguar quién mató a mi hermano.
Coge el abrigo, fuera hace un frío terrible.
En casa. Veía la televisión con mi hermana pequeña.
¡Tire el arma y levante las manos!
El médico dice que vivirá.
Todavía no. Necesita descansar.
Más del que podré devolver jamás.
El tren sale dentro de cinco minutos, ¡date prisa!
Es demasiado tarde. Me caso con otro.
Es el abogado de mi padre. No te fíes de él.
Nada. Me caí por las escaleras.
¡Silencio! Viene alguien.
Un vaso de agua, por favor, señor.
Ochenta y siete, y todavía bailo.
Nos han robado otra vez el coche. ¡Qué vergüenza!
Mañana iremos a la playa con los niños.
Lo siento, no quería hacerte daño.
¿Por qué lloras, pequeña?
Ven conmigo, la buscaremos juntos.
Nadie debe saber que nos hemos visto aquí.
Mi abuelo construyó esta casa con sus propias manos.
No quiero su dinero, quiero la verdad.
Está despedido. Recoja sus cosas.
Bienvenido a casa, hijo. Te hemos echado de menos.
Buenas noches. Que duermas bien y no pienses más en eso.
Todo saldrá bien, ya lo verás.)"},
    {"Portuguese", Writing::latin, western, "áâãàçéêíóôõúü",
     R"(Bom dia. Estão à nossa espera há muito tempo?
Sente-se, vou contar-lhe tudo desde o começo.
De repente ouvimos um grito e a luz apagou-se.
Ninguém na aldeia quis acreditar em nós.
Preciso descobrir quem matou o meu irmão.
Leve o casaco, lá fora está um frio terrível.
Em casa. Estava a ver televisão com a minha irmã.
Largue a arma e ponha as mãos no ar!
O médico diz que ela vai sobreviver.
Ainda não. Ela precisa descansar.
Mais do que alguma vez poderei pagar. É impossível.
O comboio parte dentro de cinco minutos, depressa, João!
É tarde demais. Vou casar com outro.
É o advogado do meu pai. Não confie nele.
Nada. Caí das escadas, avó.
Silêncio! Vem aí alguém.
Um copo de água, por favor.
Oitenta e sete, e ainda danço.
Roubaram o nosso carro outra vez. Não acredito!
Amanhã vamos à praia com as crianças.
Desculpa, não queria magoar-te.
Por que estás a chorar, pequenina? Diz à mãe.
Vem comigo, vamos procurá-la juntos.
Ninguém pode saber que nos encontramos aqui.
O meu avô construiu esta casa com as próprias mãos.
Não quero o seu dinheiro, quero a verdade.
Está despedido. Arrume as suas coisas.
Bem-vindo a casa, filho. Sentimos a tua falta. Atenção!
Boa noite. Dorme bem e não penses mais nisso.
Vai correr tudo bem, tu vais ver. Amanhã é outro dia.)"},
    {"Italian", Writing::latin, western, "àèéìíòóùú",
     R"(Buongiorno. È da molto che ci aspettate?
Si sieda, le racconterò tutto dall’inizio.
A un tratto sentimmo un grido e la luce si spense.
Nessuno nel villaggio ha voluto crederci. Perché?
Devo scoprire chi ha ucciso mio fratello.
Prendi il cappotto, fuori c’è un freddo terribile.
A casa. Guardavo la televisione con mia sorella. Sì.
Metta giù la pistola e alzi le mani!
Il dottore dice che vivrà.
Non ancora. Ha bisogno di riposare. È già tardi.
Più di quanto potrò mai restituire.
Il treno parte fra cinque minuti, sbrigati!
È troppo tardi. Sposo un altro.
È l’avvocato di mio padre. Non ti fidare di lui.
Niente. Sono caduto dalle scale, però sto bene.
Silenzio! Sta arrivando qualcuno.
Un bicchiere d’acqua, per favore. Sì, grazie.
Ottantasette, e ballo ancora. Chissà fino a quando.
Ci hanno rubato di nuovo la macchina. Non è possibile!
Domani andremo al mare con i bambini. Verrà anche papà.
Mi dispiace, non volevo farti del male. Davvero, è così.
Perché piangi, piccola?
Vieni con me, la cercheremo insieme. Sarà qui vicino.
Nessuno deve sapere che ci siamo incontrati qui. Può essere.
Mio nonno ha costruito questa casa con le sue mani.
Non voglio il suo denaro, voglio la verità.
Lei è licenziato. Raccolga le sue cose.
Bentornato a casa, figliolo. Ci sei mancato. È vero.
Buonanotte. Dormi bene e non pensarci più.
Andrà tutto bene, vedrai.)"},
    {"Dutch", Writing::latin, western, "áéíóúëïöüèêç",
     R"(Goedemorgen. Wachten jullie al lang op ons?
Ga zitten, ik zal u alles vanaf het begin vertellen.
Plotseling hoorden we een schreeuw en ging het licht uit.
Niemand in het dorp wilde ons geloven. Niet één.
Ik moet weten wie mijn broer heeft vermoord.
Neem je jas mee, het is buiten vreselijk koud.
Thuis. Ik keek televisie met mijn zus en haar cliënt.
Leg dat wapen neer en doe je handen omhoog!
De dokter zegt dat ze het zal overleven. Zíj wel.
Nog niet. Ze moet eerst rusten. Geen discussie, Daniël.
Meer dan ik ooit kan terugbetalen. Ideeën genoeg.
De trein vertrekt over vijf minuten, schiet op!
Het is te laat. Ik trouw met iemand anders, in België.
Hij is de advocaat van mijn vader. Vertrouw hem niet.
Niets. Ik ben van de trap gevallen.
Stil! Er komt iemand aan. Hé, wie is daar?
Een glas water, alstublieft. Gefeliciteerd, coördinator.
Zevenentachtig, en ik dans nog steeds. Café in, café uit.
Ze hebben alweer onze auto gestolen. Dat is té erg.
Morgen gaan we met de kinderen naar zee.
Het spijt me, ik wilde je geen pijn doen. Eén keer maar.
Waarom huil je, kleintje? Waar zijn je ouders?
Kom maar mee, we gaan haar samen zoeken.
Niemand mag weten dat wij elkaar hier ontmoet hebben.
Mijn opa heeft dit huis met zijn eigen handen gebouwd.
Ik wil uw geld niet, ik wil de waarheid. Hè, hè.
U bent ontslagen. Pak uw spullen. Het is geregeld, sir.
Welkom thuis, jongen. We hebben je gemist.
Welterusten. Slaap lekker en denk er niet meer aan.
Alles komt goed, dat zul je zien. Echt waar, hè?)"},
    {"Swedish", Writing::latin, western, "åäöéü",
     R"(God morgon. Har ni väntat länge på oss?
Sätt er, så ska jag berätta allt från början.
Plötsligt hörde vi ett skrik och ljuset slocknade.
Ingen i byn ville tro på oss då.
Jag måste få veta vem som dödade min bror.
Ta rocken med dig, det är fruktansvärt kallt ute.
Hemma. Jag såg på tv med min syster.
Lägg ner vapnet och upp med händerna!
Läkaren säger att hon kommer att överleva.
Inte än. Hon behöver vila.
Mer än jag någonsin kan betala tillbaka.
Tåget går om fem minuter, skynda dig!
Det är för sent. Jag ska gifta mig med en annan.
Han är min fars advokat. Lita inte på honom, hör du.
Ingenting. Jag ramlade nerför trappan.
Tyst! Det kommer någon.
Ett glas vatten, är du snäll.
Åttiosju, och jag dansar fortfarande.
De har stulit vår bil igen.
I morgon åker vi till havet med barnen.
Förlåt mig, jag ville inte såra dig.
Varför gråter du, lilla vän?
Kom med mig, så letar vi efter henne tillsammans.
Ingen får veta att vi har träffats här.
Min farfar byggde det här huset med sina egna händer.
Jag vill inte ha era pengar, jag vill ha sanningen.
Ni får sparken. Packa era saker.
Välkommen hem, min son. Vi har saknat dig.
God natt. Sov gott och tänk inte mer på det.
Allt kommer att ordna sig, du ska få se.)"},
    {"Danish", Writing::latin, western, "æøåéö",
     R"(Godmorgen. Har I ventet længe på os?
Sæt Dem ned, så skal jeg fortælle det hele fra begyndelsen.
Pludselig hørte vi et skrig, og lyset gik ud.
Ingen i landsbyen ville tro på os.
Jeg må finde ud af, hvem der dræbte min bror.
Tag frakken på, det er frygteligt koldt udenfor.
Hjemme. Jeg så fjernsyn med min søster.
Læg pistolen, og op med hænderne!
Lægen siger, at hun overlever.
Ikke endnu. Hun trænger til at hvile sig.
Mere end jeg nogensinde kan betale. Så mange er det.
Toget kører om fem minutter, skynd dig!
Det er for sent. Jeg skal giftes med en anden. På lørdag.
Han er min fars sagfører. Stol ikke på ham.
Ingenting. Jeg faldt ned ad trappen, så dumt.
Stille! Der kommer nogen. Bag træerne.
Et glas vand, tak. Det er så varmt.
Syvogfirs, og jeg danser stadigvæk.
De har stjålet vores bil igen.
I morgen tager vi ud til havet med børnene.
Undskyld, det var ikke meningen at såre dig.
Hvorfor græder du, lille ven?
Kom med mig, så leder vi efter hende sammen. Værsgo.
Ingen må vide, at vi har mødt hinanden her.
Min bedstefar byggede dette hus med sine egne hænder.
Jeg vil ikke have Deres penge, jeg vil høre sandheden.
De er fyret. Pak Deres ting, og gå så.
Velkommen hjem, min dreng. Vi har savnet dig. Længe.
Godnat. Sov godt, og tænk ikke mere på det.
Det skal nok gå alt sammen, bare vent og se. Årene går.)"},
    {"Norwegian", Writing::latin, western, "æøåéèòóôä",
     R"(God morgen. Har dere ventet lenge på oss?
Sett deg, så skal jeg fortelle alt fra begynnelsen av. Vær så god.
Plutselig hørte vi et skrik, og lyset sluknet.
Ingen i bygda ville tro på oss.
Jeg må finne ut hvem som drepte broren min.
Ta på deg frakken, det er forferdelig kaldt ute.
Hjemme. Jeg så på tv sammen med søsteren min.
Legg ned våpenet og opp med hendene!
Legen sier at hun kommer til å overleve.
Ikke ennå. Hun trenger å hvile.
Mer enn jeg noen gang kan betale tilbake. Sånn er det.
Toget går om fem minutter, skynd deg!
Det er for sent. Jeg skal gifte meg med en annen på lørdag.
Han er advokaten til faren min. Ikke stol på ham. Aldri på jorda.
Ingenting. Jeg falt ned trappa. Det går bra nå.
Stille! Det kommer noen. Ned på gulvet!
Et glass vann, takk. Jeg er så tørst.
Syvogåtti, og jeg danser fortsatt. Hver kveld på låven.
De har stjålet bilen vår igjen. Det er ikke til å tro.
I morgen drar vi til sjøen med ungene. Gled dere, små venner.
Unnskyld, jeg mente ikke å såre deg.
Hvorfor gråter du, lille venn?
Bli med meg, så leter vi etter henne sammen. Gå forsiktig.
Ingen må få vite at vi møttes her.
Bestefaren min bygde dette huset med sine egne hender. Også låven.
Jeg vil ikke ha pengene dine, jeg vil høre sannheten.
Du har fått sparken. Pakk sakene dine og gå.
Velkommen hjem, gutten min. Vi har savnet deg så fælt.
God natt. Sov godt og ikke tenk mer på det.
Alt kommer til å gå bra, bare vent og se.)"},
    {"Finnish", Writing::latin, western, "äöåšžé",
     R"(Hyvää huomenta. Oletteko odottaneet meitä kauan?
Istukaa alas, minä kerron teille kaiken alusta asti.
Yhtäkkiä kuulimme huudon ja valo sammui.
Kukaan kylässä ei halunnut uskoa meitä.
Minun täytyy saada tietää, kuka tappoi veljeni.
Ota takki mukaan, ulkona on hirveän kylmä.
Kotona. Katsoin televisiota siskoni kanssa. Niinhän minä sanoin jo äsken.
Laskekaa ase maahan ja nostakaa kädet ylös!
Lääkäri sanoo, että hän jää henkiin.
Ei vielä. Hänen pitää levätä.
Enemmän kuin pystyn koskaan maksamaan takaisin. Elämä on sellaista.
Juna lähtee viiden minuutin kuluttua, pidä kiirettä!
On liian myöhäistä. Menen naimisiin toisen kanssa.
Hän on isäni asianajaja. Älä luota häneen.
Ei mitään. Kaaduin portaissa.
Hiljaa! Joku tulee tänne päin.
Lasi vettä, olkaa hyvä.
Kahdeksankymmentäseitsemän, ja tanssin yhä.
He ovat taas varastaneet meidän auton. Hyvänen aika sentään!
Huomenna menemme lasten kanssa merelle. Se on hieno päivä.
Anteeksi, en halunnut loukata sinua. Ymmärräthän.
Miksi sinä itket, pikkuinen?
Tule mukaan, etsitään häntä yhdessä.
Kukaan ei saa tietää, että tapasimme täällä.
Isoisäni rakensi tämän talon omin käsin.
En halua teidän rahojanne, haluan tietää totuuden. Se on tärkeää.
Te saatte potkut. Pakatkaa tavaranne ja lähtekää.
Tervetuloa kotiin, poikani. Meillä oli ikävä sinua.
Hyvää yötä. Nuku hyvin äläkä ajattele sitä enää.
Kaikki järjestyy kyllä, saat nähdä.)"},
    {"Icelandic", Writing::latin, western, "áéíóúýðþæö",
     R"(Góðan daginn. Hafið þið beðið lengi eftir okkur?
Sestu niður, ég skal segja þér alla söguna frá byrjun.
Skyndilega heyrðum við öskur og ljósið slokknaði.
Enginn í þorpinu vildi trúa okkur.
Ég verð að komast að því hver drap bróður minn.
Taktu kápuna þína, það er hræðilega kalt úti.
Heima. Ég var að horfa á sjónvarpið með systur minni.
Leggðu byssuna frá þér og upp með hendur!
Læknirinn segir að hún muni lifa.
Ekki enn. Hún þarf að hvíla sig.
Meira en ég get nokkurn tíma borgað.
Lestin fer eftir fimm mínútur, flýttu þér!
Það er of seint. Ég ætla að giftast öðrum.
Hann er lögfræðingur föður míns. Treystu honum ekki.
Ekkert. Ég datt í stiganum.
Þögn! Það er einhver að koma.
Eitt glas af vatni, takk fyrir, góða.
Áttatíu og sjö ára og dansa enn.
Þeir hafa stolið bílnum okkar aftur.
Á morgun förum við niður að sjó með börnin.
Fyrirgefðu, ég ætlaði ekki að særa þig.
Af hverju ertu að gráta, litla mín?
Komdu með mér, við leitum að henni saman.
Enginn má vita að við hittumst hér.
Afi minn byggði þetta hús með eigin höndum.
Ég vil ekki peningana þína, ég vil sannleikann.
Þú ert rekinn. Pakkaðu dótinu þínu.
Velkominn heim, sonur sæll. Við söknuðum þín.
Góða nótt. Sofðu rótt og hættu að hugsa um það.
Þetta fer allt vel, þú munt sjá.)"},
    {"Catalan", Writing::latin, western, "àçèéíïòóúü",
     R"(Bon dia. Fa gaire estona que ens espereu? És tard.
Segui, li ho explicaré tot des del començament.
De sobte vam sentir un crit i es va apagar la llum. Això és tot.
Ningú del poble no ens volia creure.
He de saber qui va matar el meu germà.
Agafa l’abric, a fora fa un fred terrible. És hivern.
A casa. Mirava la televisió amb la meva germana. És cert.
Deixi anar l’arma i posi les mans enlaire! També vostè!
El metge diu que viurà.
Encara no. Necessita reposar. Demà potser sí.
Més dels que mai podré tornar.
El tren surt d’aquí a cinc minuts, afanya’t!
És massa tard. Em caso amb un altre.
És l’advocat del meu pare. No te’n refiïs.
Res. He caigut per les escales. Però estic bé, mamà.
Silenci! Ve algú.
Un got d’aigua, si us plau. Gràcies.
Vuitanta-set, i encara ballo. Fins demà, si cal!
Ens han tornat a robar el cotxe. Quina desgràcia!
Demà anirem al mar amb els nens.
Em sap greu, no et volia fer mal. Perdó.
Per què plores, petita?
Vine amb mi, que la buscarem junts. No pot ser gaire lluny, oi? Això mateix.
Ningú no ha de saber que ens hem vist aquí. Entesos? Així m’agrada.
El meu avi va construir aquesta casa amb les seves mans. És nostra.
No vull els seus diners, vull la veritat. Només això.
Està acomiadat. Reculli les seves coses. Adéu-siau.
Benvingut a casa, fill. T’hem trobat a faltar moltíssim.
Bona nit. Dorm bé i no hi pensis més.
Tot anirà bé, ja ho veuràs. Força i paciència.)"},
    {"Albanian", Writing::latin, western, "ëç",
     R"(Mirëmëngjes. Keni kohë që na prisni?
Uluni, do t’ju tregoj gjithçka nga fillimi.
Papritur dëgjuam një britmë dhe drita u fik.
Askush në fshat nuk donte të na besonte.
Duhet të zbuloj se kush e vrau vëllanë tim.
Merre pallton, jashtë bën ftohtë tmerrësisht.
Në shtëpi. Po shikoja televizor me motrën time.
Ule armën dhe ngriji duart lart!
Doktori thotë se ajo do të jetojë.
Jo ende. Ajo ka nevojë të pushojë.
Më shumë se ç’mund të kthej ndonjëherë.
Treni niset pas pesë minutash, nxito!
Është shumë vonë. Po martohem me një tjetër.
Është avokati i babait tim. Mos i beso.
Asgjë. Rashë nga shkallët.
Heshtje! Po vjen dikush.
Një gotë ujë, ju lutem.
Tetëdhjetë e shtatë, dhe ende vallëzoj.
Na e kanë vjedhur përsëri makinën.
Nesër do të shkojmë në det me fëmijët.
Më fal, nuk doja të të lëndoja.
Pse po qan, e vogël?
Eja me mua, do ta kërkojmë bashkë.
Askush nuk duhet ta dijë që u takuam këtu.
Gjyshi im e ndërtoi këtë shtëpi me duart e veta.
Nuk dua paratë tuaja, dua të vërtetën.
Jeni i pushuar nga puna. Mblidhni gjërat.
Mirë se erdhe në shtëpi, bir. Na ke munguar.
Natën e mirë. Fli mirë dhe mos mendo më për të.
Gjithçka do të shkojë mirë, do ta shohësh.)"},
};

} // namespace

std::span<const LanguageSample> westernLanguages() {
    return samples;
}

} // namespace platform
